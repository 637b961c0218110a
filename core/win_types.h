// Basic Windows types shared by the portable core.
//
// The Windows build takes them from the platform headers; the native build
// defines the few the core needs with the same names, widths and values, so
// that the renderers read identically in both builds.
#pragma once

#include <cstdint>

#ifdef _WIN32
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
#include <objbase.h>
#define KORPS_STDCALL __stdcall
#define KORPS_CDECL __cdecl
#else
#define KORPS_STDCALL
#define KORPS_CDECL

using HRESULT = std::int32_t;
using ULONG = std::uint32_t;

struct GUID {
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];
};

#define KORPS_HR(x) static_cast<HRESULT>(static_cast<std::uint32_t>(x))
#define S_OK KORPS_HR(0)
#define S_FALSE KORPS_HR(1)
#define E_NOTIMPL KORPS_HR(0x80004001)
#define E_NOINTERFACE KORPS_HR(0x80004002)
#define E_POINTER KORPS_HR(0x80004003)
#define E_FAIL KORPS_HR(0x80004005)
#define E_UNEXPECTED KORPS_HR(0x8000FFFF)
#define E_OUTOFMEMORY KORPS_HR(0x8007000E)
#define E_INVALIDARG KORPS_HR(0x80070057)
#define DISP_E_EXCEPTION KORPS_HR(0x80020009)
#define CLASS_E_NOAGGREGATION KORPS_HR(0x80040110)
#define CLASS_E_CLASSNOTAVAILABLE KORPS_HR(0x80040111)
#define MK_E_NEEDGENERIC KORPS_HR(0x800401E2)
#define MK_E_SYNTAX KORPS_HR(0x800401E4)
#define STG_E_ACCESSDENIED KORPS_HR(0x80030005)
#define STG_E_MEDIUMFULL KORPS_HR(0x80030070)
#define STG_E_INCOMPLETE KORPS_HR(0x80030201)
#define SUCCEEDED(hr) (static_cast<HRESULT>(hr) >= 0)
#define FAILED(hr) (static_cast<HRESULT>(hr) < 0)
#endif

static_assert(sizeof(GUID) == 16);

/*
 * KORPS: the event renderers and device monikers of the Orrin management
 * console, as a host sees them.
 *
 * The header compiles as C and as C++. A host loads korps.dll, resolves the
 * exports below with GetProcAddress, registers its alarm names once with RegisterAlarmTypeMap, then enumerates
 * the event types once with UI_EnumEVENTUI and keeps the renderer pointers of
 * each EVENTUI record for as long as the module stays loaded.
 */
#ifndef KORPS_KORPS_H
#define KORPS_KORPS_H

#include <windows.h>
#include <unknwn.h>

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Renders one event payload as an XML fragment into buffer (capacity UTF-16
 * units, terminating NUL included). context is not read. Returns S_OK,
 * E_UNEXPECTED for a payload of the wrong fixed size, E_POINTER for a null
 * buffer, or the failure of the rendering (DISP_E_EXCEPTION with an error
 * object describing it, among others). After a failure the buffer holds the
 * text written up to the failing piece, still NUL-terminated.
 */
typedef HRESULT(__stdcall* EventXmlRenderer)(void* context, UINT payloadBytes, const BYTE* payload, WCHAR* buffer,
                                             UINT capacity);

/* As above, for one line of text; stores the display colour (a COLORREF,
   0x00BBGGRR) on success. */
typedef HRESULT(__stdcall* EventTextRenderer)(void* context, UINT payloadBytes, const BYTE* payload, WCHAR* buffer,
                                              UINT capacity, UINT* colour);

/* One event type: 32 bytes on the 32-bit target, no padding; 48 bytes on the
   64-bit target, in its natural layout (4 bytes of padding after reserved). */
typedef struct EVENTUI {
    GUID eventType;
    EventXmlRenderer xmlRenderer; /* null when the type has no XML form */
    UINT reserved; /* always 0 */
    EventTextRenderer textRenderer;
    const WCHAR* name; /* module-owned; valid while the module is loaded */
} EVENTUI;

/* EVENTUI crosses the module boundary as 32 bytes on the 32-bit target and
   48 on the 64-bit one. */
#ifdef _WIN64
typedef char korps_eventui_is_48_bytes[sizeof(EVENTUI) == 48 ? 1 : -1];
#else
typedef char korps_eventui_is_32_bytes[sizeof(EVENTUI) == 32 ? 1 : -1];
#endif

/*
 * Hands out the event type table. Next copies records and returns S_FALSE
 * when fewer than asked were left; Clone starts the copy at the first record
 * again, whatever the position of its source.
 */
DEFINE_GUID(IID_IEnumEVENTUI, 0xd3685424, 0x6ac4, 0x4f3f, 0x8c, 0x8e, 0x11, 0x00, 0x7b, 0x46, 0x26, 0x95);

#ifdef __cplusplus
} /* extern "C" */

MIDL_INTERFACE("d3685424-6ac4-4f3f-8c8e-11007b462695")
IEnumEVENTUI : public IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE Next(ULONG celt, EVENTUI * rgelt, ULONG * pceltFetched) = 0;
    virtual HRESULT STDMETHODCALLTYPE Skip(ULONG celt) = 0;
    virtual HRESULT STDMETHODCALLTYPE Reset() = 0;
    virtual HRESULT STDMETHODCALLTYPE Clone(IEnumEVENTUI * *ppEnum) = 0;
};
#ifdef __CRT_UUID_DECL
__CRT_UUID_DECL(IEnumEVENTUI, 0xd3685424, 0x6ac4, 0x4f3f, 0x8c, 0x8e, 0x11, 0x00, 0x7b, 0x46, 0x26, 0x95)
#endif

extern "C" {
#else
typedef struct IEnumEVENTUI IEnumEVENTUI;
typedef struct IEnumEVENTUIVtbl {
    HRESULT(STDMETHODCALLTYPE* QueryInterface)(IEnumEVENTUI* This, REFIID riid, void** ppvObject);
    ULONG(STDMETHODCALLTYPE* AddRef)(IEnumEVENTUI* This);
    ULONG(STDMETHODCALLTYPE* Release)(IEnumEVENTUI* This);
    HRESULT(STDMETHODCALLTYPE* Next)(IEnumEVENTUI* This, ULONG celt, EVENTUI* rgelt, ULONG* pceltFetched);
    HRESULT(STDMETHODCALLTYPE* Skip)(IEnumEVENTUI* This, ULONG celt);
    HRESULT(STDMETHODCALLTYPE* Reset)(IEnumEVENTUI* This);
    HRESULT(STDMETHODCALLTYPE* Clone)(IEnumEVENTUI* This, IEnumEVENTUI** ppEnum);
} IEnumEVENTUIVtbl;
struct IEnumEVENTUI {
    const IEnumEVENTUIVtbl* lpVtbl;
};
#endif

/* One alarm type for RegisterAlarmTypeMap: 20 bytes on the 32-bit target,
   24 on the 64-bit one. The module keeps the name pointer, not a copy. */
typedef struct ALARMTYPE {
    GUID id;
    const char* name;
} ALARMTYPE;

#ifdef _WIN64
typedef char korps_alarmtype_is_24_bytes[sizeof(ALARMTYPE) == 24 ? 1 : -1];
#else
typedef char korps_alarmtype_is_20_bytes[sizeof(ALARMTYPE) == 20 ? 1 : -1];
#endif

/* Export signatures, for GetProcAddress. */
typedef HRESULT(__stdcall* UI_EnumEVENTUI_t)(IEnumEVENTUI** ppEnum);
typedef int(__cdecl* RegisterAlarmTypeMap_t)(int count, const ALARMTYPE* records);

/* Registration, for installers and hosts that do not use regsvr32. */
typedef HRESULT(__stdcall* DllRegisterServer_t)(void);
typedef HRESULT(__stdcall* DllUnregisterServer_t)(void);

/* The exports, for hosts that link the import library lib/libkorps.a rather
   than resolving them with GetProcAddress. */
#ifndef KORPS_MODULE_BUILD
HRESULT __stdcall UI_EnumEVENTUI(IEnumEVENTUI** ppEnum);
int __cdecl RegisterAlarmTypeMap(int count, const ALARMTYPE* records);
#endif

#ifdef __cplusplus
} /* extern "C" */
#endif

#include "korps_events.h"

#endif /* KORPS_KORPS_H */

/* The merged proxy/stub's entry points, for the module's exports. */
#pragma once

#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

HRESULT WINAPI korps_proxy_DllGetClassObject(REFCLSID rclsid, REFIID riid, void** ppv);
HRESULT WINAPI korps_proxy_DllCanUnloadNow(void);
HRESULT korps_proxy_register(HMODULE module);
HRESULT korps_proxy_unregister(HMODULE module);

#ifdef __cplusplus
}
#endif

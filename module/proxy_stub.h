/* The merged proxy/stub's entry points, for the module's exports. */
#pragma once

#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

HRESULT WINAPI korps_proxy_DllGetClassObject(REFCLSID rclsid, REFIID riid, void** ppv);
// Declared as the generated code defines it (rpcproxy.h's DLLCANUNLOADNOW:
// an empty parameter list, which in C is no prototype), so that proxy_stub.c,
// which sees that definition first, reads a declaration that agrees with it.
HRESULT WINAPI korps_proxy_DllCanUnloadNow();
HRESULT korps_proxy_register(HMODULE module);
HRESULT korps_proxy_unregister(HMODULE module);

/* The proxy/stub's own class, under which the interfaces are registered. */
const CLSID* korps_proxy_class(void);

/* Calls `each` for every marshalled interface, in the order of the proxy
 * file tables: its IID, its name and its method count, IUnknown's three
 * included. */
typedef void (*korps_proxy_interface_fn)(void* context, const IID* iid, const char* name, unsigned long methods);
void korps_proxy_interfaces(korps_proxy_interface_fn each, void* context);

#ifdef __cplusplus
}
#endif

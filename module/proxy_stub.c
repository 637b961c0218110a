/* The merged proxy/stub of the marshalled interfaces: the generated proxy
 * file list with its class object, and its registration under the module's
 * proxy/stub class. The entry points carry a prefix; the module's own
 * exports call them (module/proxy_stub.h). */
#define ENTRY_PREFIX korps_proxy_
#define PROXY_DELEGATION
/* {5B0C3D52-6F0A-4C41-9E7B-3A1D2C4F8E61}: the proxy/stub class of korps.dll. */
#define PROXY_CLSID_IS                                                                                                 \
    {                                                                                                                  \
        0x5b0c3d52, 0x6f0a, 0x4c41,                                                                                    \
        {                                                                                                              \
            0x9e, 0x7b, 0x3a, 0x1d, 0x2c, 0x4f, 0x8e, 0x61                                                             \
        }                                                                                                              \
    }

#include "dlldata.c"

#include "module/proxy_stub.h"

HRESULT korps_proxy_register(HMODULE module)
{
    return NdrDllRegisterProxy(module, aProxyFileList, &CLSID_PSFactoryBuffer);
}

HRESULT korps_proxy_unregister(HMODULE module)
{
    return NdrDllUnregisterProxy(module, aProxyFileList, &CLSID_PSFactoryBuffer);
}

const CLSID* korps_proxy_class(void)
{
    return &CLSID_PSFactoryBuffer;
}

void korps_proxy_interfaces(korps_proxy_interface_fn each, void* context)
{
    for (const ProxyFileInfo* const* file = aProxyFileList; *file; ++file) {
        for (unsigned short i = 0; i < (*file)->TableSize; ++i) {
            const CInterfaceStubHeader* header = &(*file)->pStubVtblList[i]->header;
            each(context, header->piid, (*file)->pNamesArray[i], header->DispatchTableCount);
        }
    }
}

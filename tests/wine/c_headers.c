/* The public headers as a C host sees them: this file only has to compile,
 * with every warning an error, and to call through the C interface layout. */
#define COBJMACROS
#include "korps/korps.h"
#include "korps/korps_interfaces.h"

HRESULT korps_c_host_first_event(UI_EnumEVENTUI_t enumerate, EVENTUI* first);

HRESULT korps_c_host_first_event(UI_EnumEVENTUI_t enumerate, EVENTUI* first)
{
    IEnumEVENTUI* types = NULL;
    HRESULT result = enumerate(&types);
    if (FAILED(result))
        return result;
    result = types->lpVtbl->Next(types, 1, first, NULL);
    types->lpVtbl->Release(types);
    if (SUCCEEDED(result) && !IsEqualGUID(&first->eventType, &KORPS_EVENT_FALCON_DATA_CHANGED))
        result = E_UNEXPECTED;
    return result;
}

HRESULT korps_c_host_kind(IKorMoniker* moniker, ULONG* kind);

HRESULT korps_c_host_kind(IKorMoniker* moniker, ULONG* kind)
{
    return IKorMoniker_GetKind(moniker, kind);
}

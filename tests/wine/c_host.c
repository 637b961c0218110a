/* A C host linked with the import library: it calls the exports directly and
 * takes the first event type. Exit code 0 when that works. */
#include <stdio.h>

#include "korps/korps.h"

int main(void)
{
    IEnumEVENTUI* types = NULL;
    EVENTUI first;
    ULONG fetched = 0;
    if (FAILED(UI_EnumEVENTUI(&types)))
        return 1;
    types->lpVtbl->Next(types, 1, &first, &fetched);
    types->lpVtbl->Release(types);
    if (fetched != 1 || !IsEqualGUID(&first.eventType, &KORPS_EVENT_FALCON_DATA_CHANGED))
        return 1;
    printf("%ls\n", first.name);
    return 0;
}

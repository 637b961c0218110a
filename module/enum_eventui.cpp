#include "module/enum_eventui.h"

#include <cstring>

#include "core/com_ptr.h"
#include "core/interface_map.h"
#include "core/module_lock.h"

CEnumEVENTUI::CEnumEVENTUI(const event_type_row* begin, const event_type_row* end) noexcept
    : begin_(begin), cur_(begin), end_(end)
{
    lifetime::lock();
}

CEnumEVENTUI::~CEnumEVENTUI()
{
    lifetime::unlock();
}

HRESULT CEnumEVENTUI::Create(const event_type_row* begin, const event_type_row* end, IEnumEVENTUI** ppEnum)
{
    if (!ppEnum)
        return E_POINTER;
    com_ptr<CEnumEVENTUI> made = make_com<CEnumEVENTUI>(begin, end);
    if (!made)
        return E_OUTOFMEMORY;
    *ppEnum = made.detach();
    return S_OK;
}

HRESULT CEnumEVENTUI::QueryInterface(REFIID riid, void** ppv)
{
    static constexpr interface_entry<CEnumEVENTUI> interfaces[] = {
        interface_row<CEnumEVENTUI, IEnumEVENTUI>(IID_IEnumEVENTUI),
    };
    return query_interface(this, interfaces, riid, ppv);
}

ULONG CEnumEVENTUI::AddRef()
{
    return refs_.add();
}

ULONG CEnumEVENTUI::Release()
{
    return refs_.release([this] { delete this; });
}

HRESULT CEnumEVENTUI::Next(ULONG celt, EVENTUI* rgelt, ULONG* pceltFetched)
{
    if (!rgelt && celt != 0)
        return E_POINTER;
    ULONG fetched = 0;
    while (fetched < celt && cur_ != end_) {
        EVENTUI& record = rgelt[fetched];
        std::memcpy(&record.eventType, cur_->eventType, sizeof(GUID));
        record.xmlRenderer = cur_->xmlRenderer;
        record.reserved = cur_->reserved;
        record.textRenderer = cur_->textRenderer;
        record.name = cur_->name;
        ++cur_;
        ++fetched;
    }
    if (pceltFetched)
        *pceltFetched = fetched;
    return fetched == celt ? S_OK : S_FALSE;
}

HRESULT CEnumEVENTUI::Skip(ULONG celt)
{
    ULONG skipped = 0;
    while (skipped < celt && cur_ != end_) {
        ++cur_;
        ++skipped;
    }
    return skipped == celt ? S_OK : S_FALSE;
}

HRESULT CEnumEVENTUI::Reset()
{
    cur_ = begin_;
    return S_OK;
}

HRESULT CEnumEVENTUI::Clone(IEnumEVENTUI** ppEnum)
{
    // Deliberately from the start of the range, not from this position.
    return Create(begin_, end_, ppEnum);
}

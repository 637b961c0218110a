// The enumerator over the module's event type table that UI_EnumEVENTUI
// hands out, in the host's enumerator interface.
#pragma once

#include "events/event_type_row.h"
#include "core/ref_count.h"
#include "include/korps/korps.h"

class CEnumEVENTUI final : public IEnumEVENTUI {
public:
    // A new enumerator over [begin, end) standing at begin, with one
    // reference, in *ppEnum. Failures leave *ppEnum unchanged.
    static HRESULT Create(const event_type_row* begin, const event_type_row* end, IEnumEVENTUI** ppEnum);

    // Made with make_com, which holds its first reference; the destructor is
    // Release's alone.
    CEnumEVENTUI(const event_type_row* begin, const event_type_row* end) noexcept;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE Next(ULONG celt, EVENTUI* rgelt, ULONG* pceltFetched) override;
    HRESULT STDMETHODCALLTYPE Skip(ULONG celt) override;
    HRESULT STDMETHODCALLTYPE Reset() override;
    HRESULT STDMETHODCALLTYPE Clone(IEnumEVENTUI** ppEnum) override;

private:
    ~CEnumEVENTUI();

    lifetime::ref_count refs_;
    const event_type_row* begin_;
    const event_type_row* cur_;
    const event_type_row* end_;
};

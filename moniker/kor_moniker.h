// The "kor:" device moniker: one KorName, printed, parsed, saved, compared,
// hashed, and bound through the host's binder service.
#pragma once

#include <objidl.h>
#include <servprov.h>

#include "core/com_ptr.h"
#include "core/ref_count.h"
#include "korps/korps_interfaces.h"
#include "moniker/kor_name.h"

class CKorMoniker final : public IMoniker, public IKorMoniker {
public:
    class CFactory;

    // A moniker naming `name`, made with make_com<CKorMoniker>(name), which
    // holds its first reference. The destructor is Release's alone.
    explicit CKorMoniker(const KorName& name = {}) noexcept;

    // Reads a "kor:" display name into this freshly made moniker: S_OK with the
    // characters consumed in *eaten; E_UNEXPECTED, without an error object, for
    // a text that is not a "kor:" name; the parse failure with its error object
    // otherwise. Only success changes the moniker.
    HRESULT Parse(LPCOLESTR text, ULONG* eaten) noexcept;

    // IUnknown
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    // IPersist
    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* pClassID) override;

    // IPersistStream
    HRESULT STDMETHODCALLTYPE IsDirty() override;
    HRESULT STDMETHODCALLTYPE Load(IStream* pStm) override;
    HRESULT STDMETHODCALLTYPE Save(IStream* pStm, BOOL fClearDirty) override;
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* pcbSize) override;

    // IMoniker
    HRESULT STDMETHODCALLTYPE BindToObject(IBindCtx* pbc, IMoniker* pmkToLeft, REFIID riidResult,
                                           void** ppvResult) override;
    HRESULT STDMETHODCALLTYPE BindToStorage(IBindCtx* pbc, IMoniker* pmkToLeft, REFIID riid, void** ppvObj) override;
    HRESULT STDMETHODCALLTYPE Reduce(IBindCtx* pbc, DWORD dwReduceHowFar, IMoniker** ppmkToLeft,
                                     IMoniker** ppmkReduced) override;
    HRESULT STDMETHODCALLTYPE ComposeWith(IMoniker* pmkRight, BOOL fOnlyIfNotGeneric,
                                          IMoniker** ppmkComposite) override;
    HRESULT STDMETHODCALLTYPE Enum(BOOL fForward, IEnumMoniker** ppenumMoniker) override;
    HRESULT STDMETHODCALLTYPE IsEqual(IMoniker* pmkOtherMoniker) override;
    HRESULT STDMETHODCALLTYPE Hash(DWORD* pdwHash) override;
    HRESULT STDMETHODCALLTYPE IsRunning(IBindCtx* pbc, IMoniker* pmkToLeft, IMoniker* pmkNewlyRunning) override;
    HRESULT STDMETHODCALLTYPE GetTimeOfLastChange(IBindCtx* pbc, IMoniker* pmkToLeft, FILETIME* pFileTime) override;
    HRESULT STDMETHODCALLTYPE Inverse(IMoniker** ppmk) override;
    HRESULT STDMETHODCALLTYPE CommonPrefixWith(IMoniker* pmkOther, IMoniker** ppmkPrefix) override;
    HRESULT STDMETHODCALLTYPE RelativePathTo(IMoniker* pmkOther, IMoniker** ppmkRelPath) override;
    HRESULT STDMETHODCALLTYPE GetDisplayName(IBindCtx* pbc, IMoniker* pmkToLeft, LPOLESTR* ppszDisplayName) override;
    HRESULT STDMETHODCALLTYPE ParseDisplayName(IBindCtx* pbc, IMoniker* pmkToLeft, LPOLESTR pszDisplayName,
                                               ULONG* pchEaten, IMoniker** ppmkOut) override;
    HRESULT STDMETHODCALLTYPE IsSystemMoniker(DWORD* pdwMksys) override;

    // IKorMoniker
    HRESULT STDMETHODCALLTYPE GetKind(ULONG* kind) override;
    HRESULT STDMETHODCALLTYPE GetMacAddress(BYTE address[6]) override;
    HRESULT STDMETHODCALLTYPE GetDeviceAddress(ULONG* deviceType, ULONG* address) override;
    HRESULT STDMETHODCALLTYPE GetExtension(ULONG* subIndex, ULONG* idValue) override;
    HRESULT STDMETHODCALLTYPE GetTransponder(ULONG* transponder) override;

private:
    ~CKorMoniker();

    // The service provider this moniker binds through: the left moniker's
    // object, or the bind context's "ServiceProvider" object.
    static HRESULT FindServiceProvider(IBindCtx* pbc, IMoniker* pmkToLeft, com_ptr<IServiceProvider>& provider);

    lifetime::ref_count refs_;
    // Written only while the moniker is being made, parsed or loaded, before
    // anybody else holds it; read-only afterwards.
    KorName name_;
};

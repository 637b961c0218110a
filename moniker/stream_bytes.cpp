#include "moniker/stream_bytes.h"

#include "core/com_ptr.h"
#include "core/errors.h"
#include "core/platform.h"

namespace {

// The stream's failure, described by whatever error object it left on the
// thread.
[[noreturn]] void throw_stream_failure(HRESULT result)
{
    // Released however the construction of the error ends.
    const com_ptr<com::error_info> info(platform::take_error_info());
    throw com::error(result, info.get());
}

// A transfer must succeed and move every byte; one that moved fewer fails
// with `shortfall`.
void check_transfer(HRESULT result, ULONG moved, std::size_t count, HRESULT shortfall)
{
    if (FAILED(result))
        throw_stream_failure(result);
    if (moved != count)
        throw com::error(shortfall);
}

}   // namespace

stream_bytes::stream_bytes(IStream* stream) noexcept : stream_(stream)
{
    stream->AddRef();
}

void stream_bytes::write(const std::uint8_t* bytes, std::size_t count)
{
    ULONG written = 0;
    const HRESULT result = stream_->Write(bytes, static_cast<ULONG>(count), &written);
    check_transfer(result, written, count, STG_E_MEDIUMFULL);
}

void stream_bytes::read(std::uint8_t* bytes, std::size_t count)
{
    ULONG got = 0;
    const HRESULT result = stream_->Read(bytes, static_cast<ULONG>(count), &got);
    check_transfer(result, got, count, STG_E_INCOMPLETE);
}

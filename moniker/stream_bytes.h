// A COM stream as the byte sink and source of a name's persistent form.
#pragma once

#include <objidl.h>

#include "core/com_ptr.h"
#include "moniker/kor_name_stream.h"

// Holds a reference on the stream while it is in use. A Read or Write that
// fails throws com::error with the stream's own HRESULT and the thread's
// current error object; a short read throws STG_E_INCOMPLETE, a short write
// STG_E_MEDIUMFULL.
class stream_bytes final : public byte_sink, public byte_source {
public:
    explicit stream_bytes(IStream* stream) noexcept;

    void write(const std::uint8_t* bytes, std::size_t count) override;
    void read(std::uint8_t* bytes, std::size_t count) override;

private:
    com_ptr<IStream> stream_;
};

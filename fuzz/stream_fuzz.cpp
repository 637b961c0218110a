// Any bytes through the loader of the moniker's stream form.
//
// Invariants: loading either fails with one of the loader's errors or reads a
// name that saves back to exactly the bytes it consumed, never more than the
// promised maximum.
#include <algorithm>
#include <cstdint>

#include "core/errors.h"
#include "fuzz/fuzz_check.h"
#include "moniker/kor_name_stream.h"
#include "tests/common/memory_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    memory_source in(data, size);
    KorName name;
    try {
        load_kor_name(name, in);
    } catch (const io::underflow&) {
        return 0;
    } catch (const not_expected&) {
        return 0;
    }
    FUZZ_REQUIRE(in.at <= kor_name_stream_max);
    memory_sink out;
    save_kor_name(name, out);
    FUZZ_REQUIRE(out.bytes.size() == in.at);
    FUZZ_REQUIRE(std::equal(out.bytes.begin(), out.bytes.end(), data));
    return 0;
}

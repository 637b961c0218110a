// Every sample payload of samples/ through the real module's renderers, as
// the host reaches them: by GUID, through the enumerator's records.
#include <gtest/gtest.h>

#include <cstring>

#include "tests/common/sample_check.h"
#include "tests/wine/module_fixture.h"

namespace sample_check {
std::string take_error_description()
{
    return ::take_error_description();
}
} // namespace sample_check

namespace {

sample_check::renderers find_renderers(const GUID& id)
{
    IEnumEVENTUI* types = nullptr;
    if (FAILED(korps_module::get().UI_EnumEVENTUI(&types)))
        return {};
    sample_check::renderers found;
    EVENTUI record;
    while (types->Next(1, &record, nullptr) == S_OK)
        if (std::memcmp(&record.eventType, &id, sizeof id) == 0)
            found = {record.xmlRenderer, record.textRenderer};
    types->Release();
    return found;
}

class Samples : public testing::TestWithParam<samples::sample> {};

TEST_P(Samples, RenderExactlyAndWithinEveryBuffer)
{
    sample_check::check(find_renderers(GetParam().event), GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, Samples, testing::ValuesIn(samples::load_folder(KORPS_SAMPLES_DIR)),
                         sample_check::test_name);

} // namespace

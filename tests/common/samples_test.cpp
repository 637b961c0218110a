// Every sample payload of samples/ through the renderers of the program
// under test.
#include <gtest/gtest.h>

#include "tests/common/sample_check.h"

namespace {

// The samples' alarm types, registered before any sample is rendered.
class registered_alarm_types : public testing::Environment {
public:
    void SetUp() override { sample_check::register_alarm_types(); }
};

testing::Environment* const alarm_types_environment = testing::AddGlobalTestEnvironment(new registered_alarm_types);

class Samples : public testing::TestWithParam<samples::sample> {};

TEST_P(Samples, RenderExactlyAndWithinEveryBuffer)
{
    sample_check::check(sample_check::find_renderers(GetParam().event), GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, Samples, testing::ValuesIn(samples::load_folder(KORPS_SAMPLES_DIR)),
                         sample_check::test_name);

}   // namespace

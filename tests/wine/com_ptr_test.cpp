// com_ptr's reference bookkeeping, counted by a fake object: what query()
// takes, what a refusal leaves, what detach() hands on.
#include <gtest/gtest.h>

#include "core/com_ptr.h"
#include "tests/wine/com_fakes.h"

namespace {

TEST(ComPtr, QueryAndDetach)
{
    fake_provider provider;
    provider.AddRef();
    {
        const com_ptr<IUnknown> held(static_cast<IServiceProvider*>(&provider));
        com_query<IServiceProvider> found = held.query<IServiceProvider>();
        EXPECT_EQ(found.result, S_OK);
        EXPECT_EQ(found.ptr.get(), static_cast<IServiceProvider*>(&provider));
        const com_query<IKorBinder> refused = held.query<IKorBinder>();
        EXPECT_EQ(refused.result, E_NOINTERFACE);
        EXPECT_FALSE(refused.ptr);
        EXPECT_EQ(provider.refs, 3) << "the test's, the held one and the one query took";

        IServiceProvider* handed = found.ptr.detach();
        EXPECT_FALSE(found.ptr);
        EXPECT_EQ(provider.refs, 3) << "detach hands the reference on without releasing it";
        handed->Release();
    }
    EXPECT_EQ(provider.refs, 1);
}

}   // namespace

#include "Precondition.h"

#include "DeathTest.h"

namespace TQFoundation {
namespace {

TEST(PreconditionDeathTest, StopsTheProcessWithoutAMessage)
{
    EXPECT_EXIT(precondition(false), testing::KilledBySignal(Testing::trapSignal), Testing::noMessage);
}

TEST(Precondition, DoesNothingIfItHolds)
{
    precondition(true);
}

} // namespace
} // namespace TQFoundation

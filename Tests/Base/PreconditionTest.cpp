#include "Precondition.h"

#include "DeathTest.h"

namespace TQFoundation {
namespace {

TEST(PreconditionDeathTest, ABrokenOneStopsTheProcessWithoutAMessage)
{
    EXPECT_EXIT(precondition(false), testing::KilledBySignal(Testing::trapSignal), "^$");
}

TEST(Precondition, OneThatHoldsDoesNothing)
{
    precondition(true);
}

} // namespace
} // namespace TQFoundation

#include "Platform.h"

namespace TQFoundation {

RepeatingTimer::~RepeatingTimer() = default;

Platform::~Platform() = default;

} // namespace TQFoundation

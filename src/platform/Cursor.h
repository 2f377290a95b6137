#pragma once

namespace NS {

/// Shapes of the pointer.
enum class Cursor { Arrow, PointingHand };

} // namespace NS

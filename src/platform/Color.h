#pragma once

namespace NS {

/// Colours that the program sets itself; every other one is the scene's.
enum class Color { clearColor };

} // namespace NS

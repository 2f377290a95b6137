#pragma once

namespace NS {

/// Sizes and places are in points: logical pixels.
struct Size {
    double width = 0.0;
    double height = 0.0;

    friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
    double x = 0.0;
    double y = 0.0;
    Size size;

    friend bool operator==(const Rect&, const Rect&) = default;
};

/// Distances from the edges, inwards; negative ones reach beyond.
struct EdgeInsets {
    double top = 0.0;
    double left = 0.0;
    double bottom = 0.0;
    double right = 0.0;

    friend bool operator==(const EdgeInsets&, const EdgeInsets&) = default;
};

} // namespace NS

#pragma once

#include "platform/Geometry.h"

namespace NS {

/// Told what the pointer does.
class Responder {
public:
    virtual ~Responder() = default;

    virtual void mouseEntered() {}
    virtual void mouseExited() {}
};

// Options of a tracking area, as bits.
inline constexpr unsigned TrackingMouseEnteredAndExited = 0x01;
/// Also while the program is not in front.
inline constexpr unsigned TrackingActiveAlways = 0x80;
/// The area is what shows of the view, whatever its rectangle was.
inline constexpr unsigned TrackingInVisibleRect = 0x200;

/// A part of a view whose owner is told when the pointer enters and leaves it. The owner must outlive the view.
struct TrackingArea {
    Rect rect;
    unsigned options = 0;
    Responder* owner = nullptr;
};

} // namespace NS

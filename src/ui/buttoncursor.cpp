#include "ui/buttoncursor.h"

#include "platform/Platform.h"

void buttoncursor::awakeFromNib()
{
    NS::CustomButton::awakeFromNib();
    button().addTrackingArea(
        {.rect = button().bounds(),
         .options = NS::TrackingMouseEnteredAndExited | NS::TrackingActiveAlways | NS::TrackingInVisibleRect,
         .owner = this});
}

void buttoncursor::mouseEntered()
{
    NS::platform().setCursor(NS::Cursor::PointingHand);
}

void buttoncursor::mouseExited()
{
    NS::platform().setCursor(NS::Cursor::Arrow);
}

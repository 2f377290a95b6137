#include "onboarding/ExtensionsPane.h"

#include "platform/Platform.h"

void openExtensionsPane()
{
    NS::platform().sharedWorkspace().openURL(
        NS::URL::fileURLWithPath("/System/Library/PreferencePanes/Extensions.prefPane"));
}

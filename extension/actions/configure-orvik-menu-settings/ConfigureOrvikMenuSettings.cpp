#include "extension/actions/support/Action.h"
#include "extension/actions/support/Panel.h"

namespace MenuExtension {

Outcome perform(const Request&)
{
    return startPanel();
}

} // namespace MenuExtension

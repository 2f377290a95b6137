#include "extension/actions/support/Action.h"
#include "extension/actions/transfer/window/TransferAction.h"

namespace MenuExtension {

Outcome perform(const Request& request)
{
    return Transfers::performTransfer(request, Transfers::Kind::Move);
}

} // namespace MenuExtension

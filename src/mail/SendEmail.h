#pragma once

#include "platform/SharingService.h"

/// A sharing delegate that is deliberately never made: the mail service is given none, so the program never
/// learns whether a message was sent.
class SendEmail : public NS::SharingServiceDelegate {};

#pragma once

/// How a hand-off ended.
enum class AttachToMailOutcome {
    /// The user confirmed an item and it went to the mail composer.
    HandedOver,
    /// The user cancelled, or confirmed without an item.
    Abandoned,
    /// There was no request to act on, or the panel ended in some other way.
    NoRequest,
};

/// Looks for a request in the shared suite to send an item by mail, consumes it, and, where it is younger than
/// 20 seconds, lets the user confirm the item and hands it to the mail composer. Blocks while the user is asked.
/// A desktop without a mail service is fatal then. Main thread.
AttachToMailOutcome attachToMail();

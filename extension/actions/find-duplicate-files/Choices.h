#pragma once

namespace MenuExtension {

/// Which files are looked at beside the usual ones.
struct Choices {
    /// Whose names, or those of folders that they lie in, begin with a dot or are in a list ".hidden".
    bool hidden = false;
    bool empty = false;
    /// In folders that belong to the system or to programs, the trash among them, and what file managers keep of
    /// their own beside files.
    bool system = false;
};

} // namespace MenuExtension

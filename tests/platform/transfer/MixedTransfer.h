#pragma once

#include "TransferTest.h"

#include <map>
#include <string>

/// A transfer that does all that a transfer can: of a folder, of a file in the place of another, and of a folder into
/// one of its name.
class MixedTransfer : public TransferTest {
protected:
    using TransferTest::TransferTest;

    void prepare();
    /// With the calls that are set.
    Result runMixed(What what);

    /// Each file is whole where it was or where it goes, and no other file is to be seen, whole or not.
    void expectNothingLost() const;
    /// As prepare() has left it.
    void expectAllIsBack() const;

private:
    std::map<std::string, std::string> m_new;
    std::map<std::string, std::string> m_old;
};

#pragma once

#include <QString>
#include <QTranslator>

namespace LinuxDesktop {

/// The texts of a program with windows in the user's language, as long as this lives: its own and the toolkit's, and
/// what NS::LocalizedString() answers. In English no catalogue is opened. Windows made after it run from right to
/// left where the language does. Main thread.
class Translations {
public:
    /// `programs` is the folder of the programs that users start.
    explicit Translations(const QString& programs);
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

private:
    void install(const QString& language);

    QTranslator m_product;
    QTranslator m_toolkit;
};

} // namespace LinuxDesktop

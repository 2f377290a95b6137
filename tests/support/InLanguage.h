#pragma once

#include "platform/linux/program/Translations.h"

#include <QApplication>

#include <array>

/// Those of the catalogues, and English.
inline constexpr std::array languages{"en", "de", "fr", "es", "zh_CN", "ar"};

/// Windows that are made while it lives are in the language.
class InLanguage {
public:
    explicit InLanguage(const char* language) : m_translations(programsFor(language)) {}
    ~InLanguage() { QApplication::setLayoutDirection(Qt::LeftToRight); }
    InLanguage(const InLanguage&) = delete;
    InLanguage& operator=(const InLanguage&) = delete;

private:
    static QString programsFor(const char* language)
    {
        qputenv("LANG", "C.UTF-8");
        qputenv("LANGUAGE", language);
        return QStringLiteral(ORVIK_PROGRAMS);
    }

    const LinuxDesktop::Translations m_translations;
};

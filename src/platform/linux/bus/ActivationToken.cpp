#include "platform/linux/bus/ActivationToken.h"

#include <array>

namespace LinuxDesktop::ActivationToken {

namespace {

/// Where a program finds a token at its start, and under which key it hands that on. The first one there is counts.
struct Kind {
    const char* variable;
    const char* key;
};
constexpr const char* tokenVariable = "XDG_ACTIVATION_TOKEN";
constexpr std::array kinds = {
    Kind{tokenVariable, "activation-token"},
    Kind{"DESKTOP_STARTUP_ID", "desktop-startup-id"},
};

/// In characters. A token is some tens, a start's identifier holds names of a program and a computer besides. Anybody
/// on the bus may send one, and a variable of 128 KiB would keep every program from being started.
constexpr qsizetype longest = 4096;

QString bounded(const QString& token)
{
    return token.size() > longest ? QString() : token;
}

} // namespace

QVariantMap platformDataFromEnvironment()
{
    QVariantMap data;
    for (const Kind& kind : kinds) {
        if (const QString token = bounded(qEnvironmentVariable(kind.variable)); !token.isEmpty())
            data.insert(QLatin1String(kind.key), token);
    }
    return data;
}

QString in(const QVariantMap& platformData)
{
    for (const Kind& kind : kinds) {
        if (QString token = bounded(platformData.value(QLatin1String(kind.key)).toString()); !token.isEmpty())
            return token;
    }
    return {};
}

void use(const QString& token, const std::function<void()>& act)
{
    if (token.isEmpty()) {
        act();
        return;
    }
    // Where the toolkit looks for it.
    qputenv(tokenVariable, token.toUtf8());
    act();
    forget();
}

void forget()
{
    for (const Kind& kind : kinds)
        qunsetenv(kind.variable);
}

} // namespace LinuxDesktop::ActivationToken

#pragma once

#include <QString>
#include <QVariantMap>

#include <functional>

/// What proves that a person asked for a window, so that it may come to the front: a compositor's token, or the
/// identifier of a start. It travels from program to program as the platform data of an activation. Main thread.
namespace LinuxDesktop::ActivationToken {

/// What this process was started with. Ask before the QApplication exists, which takes variables out of the
/// environment.
[[nodiscard]] QVariantMap platformDataFromEnvironment();

/// The token in what an activation brings; empty where it has none.
[[nodiscard]] QString in(const QVariantMap& platformData);

/// Calls `act`, and the window that it activates is activated with the token.
void use(const QString& token, const std::function<void()>& act);

/// Takes the tokens out of the environment: they serve once, and not the programs that this one starts.
void forget();

} // namespace LinuxDesktop::ActivationToken

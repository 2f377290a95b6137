#include "platform/linux/widgets/Label.h"

namespace LinuxDesktop {

Label::Label(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void Label::setStringValue(std::string_view text)
{
    const QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    setText(shown);
    emit textChanged(shown);
}

} // namespace LinuxDesktop

#pragma once

#include <QAbstractItemView>

#include <utility>

namespace LinuxDesktop {

/// The toolkit tells that a list has got the keyboard, in which a row has it. Has `tell` say so after that, where it
/// still is so. Main thread.
template<typename Tell>
void tellCurrentRow(QAbstractItemView& list, Tell tell)
{
    QMetaObject::invokeMethod(
        &list,
        [&list, tell = std::move(tell)] {
            if (!list.hasFocus() || !list.currentIndex().isValid())
                return;
            // A list that is come back to stays scrolled as it is.
            const bool scrolls = list.hasAutoScroll();
            list.setAutoScroll(false);
            tell();
            list.setAutoScroll(scrolls);
        },
        Qt::QueuedConnection);
}

} // namespace LinuxDesktop

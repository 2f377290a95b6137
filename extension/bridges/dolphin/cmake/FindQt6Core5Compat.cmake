# A part of KDE Frameworks asks for this as soon as the build knows Qt 6, and makes no use of it.
set(Qt6Core5Compat_FOUND TRUE)

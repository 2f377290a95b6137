"""What the pointer looks like on a display."""

import ctypes


class _CursorImage(ctypes.Structure):
    # XFixesCursorImage of <X11/extensions/Xfixes.h>.
    _fields_ = [("x", ctypes.c_short), ("y", ctypes.c_short), ("width", ctypes.c_ushort),
                ("height", ctypes.c_ushort), ("xhot", ctypes.c_ushort), ("yhot", ctypes.c_ushort),
                ("cursor_serial", ctypes.c_ulong), ("pixels", ctypes.POINTER(ctypes.c_ulong)),
                ("atom", ctypes.c_ulong), ("name", ctypes.c_char_p)]


class Pointer:
    """The pointer of one display. Close it."""

    def __init__(self, display):
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._fixes = ctypes.CDLL("libXfixes.so.3")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._fixes.XFixesGetCursorImage.restype = ctypes.POINTER(_CursorImage)
        self._fixes.XFixesGetCursorImage.argtypes = [ctypes.c_void_p]
        self._display = self._x11.XOpenDisplay(display.encode())

    def shape(self):
        """The picture: its size, its hot spot and its pixels."""
        image = self._fixes.XFixesGetCursorImage(self._display)[0]
        pixels = image.pixels[:image.width * image.height]
        return image.width, image.height, image.xhot, image.yhot, tuple(pixels)

    def close(self):
        self._x11.XCloseDisplay.argtypes = [ctypes.c_void_p]
        self._x11.XCloseDisplay(self._display)

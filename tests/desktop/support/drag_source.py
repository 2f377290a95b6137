"""A window of another program that has something to drag, as file managers offer it: a program of its own.

Usage: drag_source.py ADDRESS...
"""

import sys

_SIZE = 80


def main():
    # Who only wants to know where the program lies has no use for a toolkit.
    # pylint: disable=import-outside-toplevel
    import gi
    gi.require_version("Gdk", "3.0")
    gi.require_version("Gtk", "3.0")
    from gi.repository import Gdk, Gtk

    handle = Gtk.EventBox()
    handle.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, [], Gdk.DragAction.COPY | Gdk.DragAction.MOVE)
    handle.drag_source_add_uri_targets()
    handle.connect("drag-data-get", lambda widget, context, data, info, time: data.set_uris(sys.argv[1:]))
    window = Gtk.Window(default_width=_SIZE, default_height=_SIZE)
    window.add(handle)
    window.show_all()
    Gtk.main()


if __name__ == "__main__":
    main()

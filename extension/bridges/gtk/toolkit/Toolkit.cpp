#include "extension/bridges/gtk/Toolkit.h"

#include "extension/bridges/gtk/Handles.h"

#include <gtk/gtk.h>
#if GTK_CHECK_VERSION(4, 0, 0)
#include <gdk/x11/gdkx.h>
#else
#include <gdk/gdkx.h>
#endif

namespace MenuExtension::Toolkit {

void copyText(const std::string& text)
{
    GdkDisplay* display = gdk_display_get_default();
    if (!display)
        return;
#if GTK_CHECK_VERSION(4, 0, 0)
    gdk_clipboard_set_text(gdk_display_get_clipboard(display), text.c_str());
#else
    GtkClipboard* clipboard = gtk_clipboard_get_for_display(display, GDK_SELECTION_CLIPBOARD);
    gtk_clipboard_set_text(clipboard, text.c_str(), static_cast<int>(text.size()));
    // It is still there when the file manager has ended.
    gtk_clipboard_set_can_store(clipboard, nullptr, 0);
#endif
}

std::string activationToken()
{
    GdkDisplay* display = gdk_display_get_default();
    if (!display)
        return {};
    // The toolkit's own token would show a busy pointer on X11 until a program ends that, and most actions show
    // nothing.
    if (GDK_IS_X11_DISPLAY(display))
        return "orvik-menu_TIME" + std::to_string(gdk_x11_display_get_user_time(display));
    const Reference<GdkAppLaunchContext> context(gdk_display_get_app_launch_context(display));
    // Nothing of it is in the token, but without one the library complains and gives none.
    const Reference<GAppInfo> any(
        g_app_info_create_from_commandline("orvik-menu", nullptr, G_APP_INFO_CREATE_NONE, nullptr));
    const Text token(
        g_app_launch_context_get_startup_notify_id(G_APP_LAUNCH_CONTEXT(context.get()), any.get(), nullptr));
    return token ? token.get() : std::string();
}

} // namespace MenuExtension::Toolkit

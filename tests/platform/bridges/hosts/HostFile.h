#pragma once

#include "extension/bridges/gtk/Handles.h"

#include <string>

/// A file as the file manager of a test shows it. `Host` says how it answers what its modules ask.
struct HostFile {
    GObject object;
    GFile* location;
    gboolean isFolder;
    const char* mimeType;

    /// How many of these questions were asked of any file.
    inline static int locationQuestions = 0;
    inline static int mimeTypeQuestions = 0;

    template<class File>
    static GFile* answerLocation(File* file)
    {
        ++locationQuestions;
        return G_FILE(g_object_ref(of(file).location));
    }

    template<class File>
    static gboolean answerIsFolder(File* file)
    {
        return of(file).isFolder;
    }

    template<class File>
    static char* answerMimeType(File* file)
    {
        ++mimeTypeQuestions;
        return g_strdup(of(file).mimeType);
    }

private:
    template<class File>
    static HostFile& of(File* file)
    {
        return *reinterpret_cast<HostFile*>(file);
    }
};

#define G_SETTINGS_ENABLE_BACKEND
#include "Settings.h"

#include <cstdio>
#include <cstdlib>
#include <gio/gio.h>
#include <gio/gsettingsbackend.h>

namespace StoreBench {

namespace {

struct Release {
    void operator()(gpointer object) const { g_object_unref(object); }
    void operator()(GSettingsSchema* schema) const { g_settings_schema_unref(schema); }
    void operator()(GSettingsSchemaSource* source) const { g_settings_schema_source_unref(source); }
};
template<class T>
using Owned = std::unique_ptr<T, Release>;

class GioSettings : public Settings {
public:
    explicit GioSettings(const std::string& folder)
    {
        const Owned<GSettingsSchemaSource> source(
            g_settings_schema_source_new_from_directory(ORVIK_BENCH_SCHEMAS, nullptr, TRUE, nullptr));
        if (!source) {
            std::fputs("no schemas in " ORVIK_BENCH_SCHEMAS "\n", stderr);
            std::exit(1);
        }
        const Owned<GSettingsSchema> schema(
            g_settings_schema_source_lookup(source.get(), "org.example.bench", FALSE));
        const Owned<GSettingsBackend> backend(
            g_keyfile_settings_backend_new((folder + "/gio.ini").c_str(), "/", nullptr));
        m_settings.reset(g_settings_new_full(schema.get(), backend.get(), nullptr));
        g_settings_set_string(m_settings.get(), "text", std::string(fileSize, 'x').c_str());
    }

    void store(int number) override
    {
        g_settings_set_int(m_settings.get(), "number", number);
        g_settings_sync();
    }

private:
    Owned<GSettings> m_settings;
};

class GioSettingsAndFolder : public Settings {
public:
    explicit GioSettingsAndFolder(const std::string& folder) : m_folder(folder), m_settings(folder) {}

    void store(int number) override
    {
        m_settings.store(number);
        flushFolder(m_folder);
    }

private:
    std::string m_folder;
    GioSettings m_settings;
};

} // namespace

std::unique_ptr<Settings> withGio(const std::string& folder)
{
    return std::make_unique<GioSettings>(folder);
}

std::unique_ptr<Settings> withGioAndFolder(const std::string& folder)
{
    return std::make_unique<GioSettingsAndFolder>(folder);
}

} // namespace StoreBench

#include "extension/actions/window/PictureReading.h"

#include <QFile>
#include <QImageReader>
#include <QMimeDatabase>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/resource.h>
// This header forgets to say that its functions are C.
extern "C" {
#include <sys/pidfd.h>
}

namespace MenuExtension {

using LinuxDesktop::FileDescriptor;
namespace Command = LinuxDesktop::Command;

namespace {

constexpr std::size_t mostSeconds = 10;
constexpr std::size_t mostMemory = std::size_t{1} << 30U;
/// Above what the most pixels take when nothing makes them shorter.
constexpr std::size_t mostWritten = std::size_t{8} << 20U;

} // namespace

bool PictureReading::isPicture(const QString& name)
{
    return QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension).name().startsWith(u"image/");
}

PictureReading::PictureReading(const std::string& path, int pixels) : m_made(::memfd_create("picture", MFD_CLOEXEC))
{
    const auto program = Command::find("gdk-pixbuf-thumbnailer");
    const FileDescriptor nowhere(::open("/dev/null", O_WRONLY | O_CLOEXEC));
    if (!program || !m_made || !nowhere)
        return;
    m_process = Command::start(
        *program, {*program, "-s", std::to_string(std::min(pixels, mostPixels)), path, "/proc/self/fd/0"},
        Command::environment(), {.input = m_made.get(), .output = nowhere.get(), .complaints = nowhere.get()});
    if (!m_process)
        return;
    m_process->limit(RLIMIT_AS, mostMemory);
    m_process->limit(RLIMIT_CPU, mostSeconds);
    m_process->limit(RLIMIT_FSIZE, mostWritten);
    m_process->limit(RLIMIT_CORE, 0);
}

PictureReading::~PictureReading()
{
    if (m_process)
        m_process->kill();
}

int PictureReading::ended() const
{
    return m_process ? m_process->ended().get() : -1;
}

QImage PictureReading::picture()
{
    QFile file;
    if (!m_process || m_process->exitStatus() != 0 ||
        !file.open(m_made.get(), QIODevice::ReadOnly, QFileDevice::DontCloseHandle))
        return {};
    QImageReader reader(&file, "png");
    const QSize size = reader.size();
    return size.width() <= mostPixels && size.height() <= mostPixels ? reader.read() : QImage();
}

QImage PictureReading::wait(const std::stop_token& stop)
{
    // The end of the program is what wakes this thread.
    const std::stop_callback onStop(stop, [this] { ::pidfd_send_signal(ended(), SIGKILL, nullptr, 0); });
    pollfd source{ended(), POLLIN, 0};
    const auto time = std::chrono::duration_cast<std::chrono::milliseconds>(patience).count();
    return ended() >= 0 && ::poll(&source, 1, static_cast<int>(time)) > 0 ? picture() : QImage();
}

} // namespace MenuExtension

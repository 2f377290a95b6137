#include "extension/actions/photos/WorkerProgram.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <unistd.h>
#include <vector>

namespace {

using MenuExtension::Photos::Message;

std::string useProcessor()
{
    volatile bool goesOn = true;
    while (goesOn) {
    }
    return {};
}

std::string takeMemory(std::size_t bytes)
{
    void* const memory = std::malloc(bytes);
    if (!memory)
        std::abort();
    std::memset(memory, 1, bytes);
    // What nobody reads the compiler would leave out.
    const bool isThere = static_cast<volatile char*>(memory)[bytes - 1] == 1;
    std::free(memory);
    return isThere ? "taken" : "";
}

std::string readFile(const Message& message)
{
    std::array<char, 4096> buffer{};
    const ssize_t count =
        message.files.empty() ? 0 : ::pread(message.files.front().get(), buffer.data(), buffer.size(), 0);
    return {buffer.data(), static_cast<std::size_t>(count)};
}

std::string obey(const Message& message)
{
    const std::string& what = message.bytes;
    if (what == "process")
        return std::to_string(::getpid());
    if (what == "abort")
        std::abort();
    if (what == "use the processor")
        return useProcessor();
    if (what == "sleep")
        ::pause();
    if (what == "take a little memory")
        return takeMemory(std::size_t{16} << 20U);
    if (what == "take much memory")
        return takeMemory(std::size_t{3} << 30U);
    if (what == "read")
        return readFile(message);
    if (what == "say nonsense") {
        const std::vector<char> nonsense(64, '\xff');
        return ::write(STDIN_FILENO, nonsense.data(), nonsense.size()) > 0 ? "" : "failed";
    }
    return what;
}

} // namespace

int main(int argc, char** argv)
{
    return MenuExtension::Photos::runWorker(
        argc, argv, [] {}, obey);
}

// A file manager as far as a list of processes shows one: it loads the module it is given and runs until it is
// started again with -q. It is copied to the name of the one that it stands for, and keeps its notes beside that.

#include <csignal>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/types.h>
#include <unistd.h>

int main(int argc, char** argv)
{
    const std::string self = std::filesystem::canonical("/proc/self/exe").string();
    if (argc == 2 && std::strcmp(argv[1], "-q") == 0) {
        std::ofstream(self + ".asked", std::ios::app) << "-q\n";
        if (std::filesystem::exists(self + ".stubborn"))
            return 0;
        std::ifstream running(self + ".running");
        for (pid_t process = 0; running >> process;)
            ::kill(process, SIGTERM);
        return 0;
    }
    if (argc == 2 && !::dlopen(argv[1], RTLD_NOW)) {
        std::fprintf(stderr, "%s\n", ::dlerror());
        return 1;
    }
    // Nobody's, should a test not end it.
    ::alarm(100);
    std::ofstream(self + ".running", std::ios::app) << ::getpid() << std::endl;
    for (;;)
        ::pause();
}

// For the thread sanitizer alone. It takes a child that shares its parent's memory until it starts a program, as the
// toolkit's do, for one with a memory of its own, and from then on does not see the locks of the parent's thread. The
// C library's own function leaves it out.

#include <cstdarg>
#include <dlfcn.h>
#include <sched.h>
#include <sys/types.h>

extern "C" __attribute__((visibility("default"))) int clone(int (*function)(void*), void* stack, int flags,
                                                            void* argument, ...)
{
    va_list rest;
    va_start(rest, argument);
    auto* parentsWord = va_arg(rest, pid_t*);
    void* threadLocal = va_arg(rest, void*);
    auto* childsWord = va_arg(rest, pid_t*);
    va_end(rest);
    static const auto real =
        reinterpret_cast<decltype(&clone)>(::dlsym(::dlopen("libc.so.6", RTLD_LAZY | RTLD_NOLOAD), "clone"));
    return real(function, stack, flags, argument, parentsWord, threadLocal, childsWord);
}

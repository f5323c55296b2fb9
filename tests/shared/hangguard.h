#ifndef HANGGUARD_H
#define HANGGUARD_H

// A hostile row that does not come back within its time is a hang: the
// figure line given says so and the program ends at once, rather than wait
// for CTest's time-out with no figure at all. Windows has no alarm signal: a
// hang there ends at CTest's time-out.

#include <cstdio>

#ifndef _WIN32
#include <csignal>
#include <cstring>
#include <unistd.h>
#endif

namespace NdxComTest {

#ifdef _WIN32
class HangGuard
{
public:
    explicit HangGuard(const char *, int = 30) { }
};
#else
class HangGuard
{
public:
    // `figure` is the whole line to print on a hang, "ndxcom-figure: ...".
    explicit HangGuard(const char *figure, int seconds = 30)
    {
        std::snprintf(line(), 256, "\n%s\n", figure);
        std::signal(SIGALRM, alarm);
        ::alarm(unsigned(seconds));
    }
    ~HangGuard()
    {
        ::alarm(0);
        std::signal(SIGALRM, SIG_DFL);
    }
    HangGuard(const HangGuard &) = delete;
    HangGuard &operator=(const HangGuard &) = delete;

private:
    static char *line()
    {
        static char text[256];
        return text;
    }
    static void alarm(int)
    {
        const ssize_t ignored = ::write(STDOUT_FILENO, line(), std::strlen(line()));
        (void)ignored;
        ::_exit(3);
    }
};
#endif

} // namespace NdxComTest

#endif // HANGGUARD_H

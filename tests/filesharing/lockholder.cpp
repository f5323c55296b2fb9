// A second workstation for the sharing tests: a process that holds, tests and
// releases projects through QFileSharing on command.
//
//   lockholder [--hostname NAME [--exec PROGRAM ARGUMENTS...]]
//
// With --hostname the process moves into a UTS namespace of its own and takes
// NAME as its host name (root only), so that it is "another computer" for the
// lock files; Windows has no such thing, and there the option is refused.
// With --exec it then becomes PROGRAM, which runs on that computer. Otherwise
// it prints "ready <host name> <pid>" and reads one command
// a line from stdin, answering each with one line:
//
//   open PATH [DEADLINE]  -> "open rw|ro|no <boxes>"  (a fresh object; waits
//                            until CLOCK_MONOTONIC, or std::chrono's steady
//                            clock on Windows, reaches DEADLINE, in ns)
//   answer si|no          -> "answer"  (how later questions are answered)
//   close                 -> "closed"
//   test PATH             -> "test <TstFileLocked>"
//   rename NAME           -> "renamed" or "error ..." (a new host name; only
//                            with --hostname)
//   quit

#include <QFileSharing>
#include <private/qfilesharing_p.h>

#include "dialogdriver.h"
#include "ndxcomtest.h"

#include <QtWidgets/QApplication>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>

#ifdef Q_OS_WIN
#include <chrono>
#include <thread>

#include <qt_windows.h>
#else
#include <sched.h>
#include <unistd.h>
#endif

namespace {

void reply(const QByteArray &line)
{
    std::fwrite(line.constData(), 1, size_t(line.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

#ifdef Q_OS_WIN
QByteArray hostName()
{
    wchar_t name[MAX_COMPUTERNAME_LENGTH + 64] = {};
    DWORD size = DWORD(std::size(name));
    if (!GetComputerNameExW(ComputerNameNetBIOS, name, &size))
        return QByteArray();
    return QString::fromWCharArray(name, int(size)).toLocal8Bit();
}

void waitUntil(qint64 deadlineNs)
{
    if (deadlineNs <= 0)
        return;
    std::this_thread::sleep_until(
        std::chrono::steady_clock::time_point(std::chrono::nanoseconds(deadlineNs)));
}
#else
QByteArray hostName()
{
    char name[300] = {};
    gethostname(name, sizeof(name) - 1);
    return QByteArray(name);
}

void waitUntil(qint64 deadlineNs)
{
    if (deadlineNs <= 0)
        return;
    timespec t;
    t.tv_sec = time_t(deadlineNs / 1000000000);
    t.tv_nsec = long(deadlineNs % 1000000000);
    while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &t, nullptr) == EINTR) { }
}
#endif

} // namespace

int main(int argc, char *argv[])
{
    // Only a process in a namespace of its own may change its host name:
    // without one, "rename" would rename the machine.
    bool ownNamespace = false;
    const bool exec = argc >= 5 && std::strcmp(argv[3], "--exec") == 0;
    if ((argc == 3 || exec) && std::strcmp(argv[1], "--hostname") == 0) {
#ifdef Q_OS_WIN
        std::printf("error Windows gives no process a computer name of its own\n");
        return 3;
#else
        if (unshare(CLONE_NEWUTS) != 0) {
            std::printf("error unshare: %s\n", std::strerror(errno));
            return 3;
        }
        if (sethostname(argv[2], std::strlen(argv[2])) != 0) {
            std::printf("error sethostname: %s\n", std::strerror(errno));
            return 3;
        }
        ownNamespace = true;
        if (exec) {
            ::execv(argv[4], argv + 4);
            std::printf("error exec %s: %s\n", argv[4], std::strerror(errno));
            return 3;
        }
#endif
    } else if (argc != 1) {
        std::fprintf(stderr, "usage: lockholder [--hostname NAME [--exec PROGRAM ARGUMENTS...]]\n");
        return 64;
    }

    NdxComTest::prepareEnvironment();
    QApplication app(argc, argv);
    NdxComTest::isolateApplication("NdxComTests", "lockholder");
    ndxcomSetSharingControl(true);

    std::unique_ptr<QFileSharing> sharing(new QFileSharing);
    QString answer = QStringLiteral("No");
    reply("ready " + hostName() + ' ' + QByteArray::number(QCoreApplication::applicationPid()));

    std::string input;
    while (std::getline(std::cin, input)) {
        const QString line = QString::fromLocal8Bit(input.c_str());
        const QString command = line.section(QLatin1Char(' '), 0, 0);
        const QString argument = line.section(QLatin1Char(' '), 1, 1);
        if (command == QLatin1String("open")) {
            // A fresh object for each open: read-only is never cleared by open.
            sharing.reset(new QFileSharing);
            const qint64 deadline = line.section(QLatin1Char(' '), 2, 2).toLongLong();
            waitUntil(deadline);
            bool ok = false;
            NdxComTest::DialogDriver driver;
            const int boxes = driver
                                  .run([&] { ok = sharing->open(argument); },
                                       {NdxComTest::Action::click(answer)})
                                  .size();
            const char *state = !ok ? "no" : sharing->isOpenRdOnly() ? "ro" : "rw";
            reply(QByteArray("open ") + state + ' ' + QByteArray::number(boxes));
        } else if (command == QLatin1String("answer")) {
            answer = argument == QLatin1String("si") ? QStringLiteral("Si") : QStringLiteral("No");
            reply("answer");
        } else if (command == QLatin1String("close")) {
            sharing->close();
            reply("closed");
        } else if (command == QLatin1String("test")) {
            reply("test " + QByteArray::number(sharing->TstFileLocked(argument)));
        } else if (command == QLatin1String("rename")) {
            const QByteArray name = argument.toLocal8Bit();
            if (!ownNamespace)
                reply("error not in a namespace of its own");
#ifndef Q_OS_WIN
            else if (sethostname(name.constData(), size_t(name.size())) == 0)
                reply("renamed");
            else
                reply(QByteArray("error ").append(std::strerror(errno)));
#endif
        } else if (command == QLatin1String("quit")) {
            break;
        } else {
            reply("error unknown command");
        }
    }
    return 0;
}

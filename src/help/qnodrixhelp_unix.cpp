// The help index on Linux and other Unix systems: read without ever waiting
// on a pipe, and only when it is a regular file.

#include "qnodrixhelp_p.h"

#include <QtCore/QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace NdxComHelp {

bool readIndexFile(const QString &path, QByteArray *bytes, bool *cut, QString *error)
{
    bytes->clear();
    *cut = false;
    const QByteArray name = QFile::encodeName(path);
    int fd;
    do {
        // O_NONBLOCK: a FIFO at the index's name must not hold the
        // application's start until somebody writes into it.
        fd = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0) {
        *error = qt_error_string(errno);
        return false;
    }
    struct stat info;
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        const bool folder = S_ISDIR(info.st_mode);
        ::close(fd);
        *error = folder ? qt_error_string(EISDIR) : QStringLiteral("Not a regular file");
        return false;
    }
    // Never more than the file holds, nor than the limit; one byte beyond it
    // tells whether there was more.
    const qint64 want = qMin<qint64>(info.st_size, IndexSizeLimit);
    bytes->reserve(int(want));
    char buffer[65536];
    while (bytes->size() < IndexSizeLimit) {
        const qint64 room = IndexSizeLimit - bytes->size();
        const ssize_t got = ::read(fd, buffer, size_t(qMin<qint64>(sizeof(buffer), room)));
        if (got < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        if (got < 0) {
            *error = qt_error_string(errno);
            ::close(fd);
            return false;
        }
        if (got == 0)
            break;
        bytes->append(buffer, int(got));
    }
    if (bytes->size() >= IndexSizeLimit) {
        char extra;
        ssize_t more;
        do {
            more = ::read(fd, &extra, 1);
        } while (more < 0 && errno == EINTR);
        *cut = more > 0;
    }
    ::close(fd);
    return true;
}

QUrl localAddress(const QString &path)
{
    // However many slashes the folder starts with ("//opt/m" is /opt/m), the
    // address keeps three: a fourth would be read as an empty host followed
    // by a path that is not the document's.
    qsizetype slashes = 0;
    while (slashes < path.size() && path.at(slashes) == QLatin1Char('/'))
        ++slashes;
    return QUrl::fromLocalFile(QLatin1Char('/') + path.mid(slashes));
}

} // namespace NdxComHelp

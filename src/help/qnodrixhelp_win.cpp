// The help index and help addresses on Windows.

#include "qnodrixhelp_p.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace NdxComHelp {

bool readIndexFile(const QString &path, QByteArray *bytes, bool *cut, QString *error)
{
    bytes->clear();
    *cut = false;
    // A folder or a device is not an index. Windows has no FIFO in a folder
    // of files, and QFile does not wait on what it opens there.
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        *error = info.isDir() ? QStringLiteral("Is a directory")
                              : QStringLiteral("Not a regular file");
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return false;
    }
    *bytes = file.read(IndexSizeLimit);
    if (file.error() != QFileDevice::NoError) {
        *error = file.errorString();
        return false;
    }
    char extra;
    *cut = bytes->size() >= IndexSizeLimit && file.read(&extra, 1) == 1;
    return true;
}

QUrl localAddress(const QString &path)
{
    const QString native = QDir::fromNativeSeparators(path);
    // "//server/share/M1": the server is the address's host, as the shell
    // would open it; never "C:\server\share" on the local drive.
    if (native.startsWith(QLatin1String("//")) && native.size() > 2
        && native.at(2) != QLatin1Char('/'))
        return QUrl::fromLocalFile(native);
    qsizetype slashes = 0;
    while (slashes < native.size() && native.at(slashes) == QLatin1Char('/'))
        ++slashes;
    const QString rest = native.mid(slashes);
    const bool drive = rest.size() >= 2 && rest.at(1) == QLatin1Char(':');
    return QUrl::fromLocalFile(drive ? rest : QLatin1Char('/') + rest);
}

} // namespace NdxComHelp

// The help index and the documents its values may name. Kept apart from the
// rest of help, on QtCore alone, so that the index fuzzer compiles the very
// code the library runs.

#include "qnodrixhelp_p.h"

#include <QtCore/QFileInfo>
#include <QtCore/QIODevice>
#include <QtCore/QStringList>
#include <QtCore/QTextStream>

Q_LOGGING_CATEGORY(lcNdxComHelp, "ndxcom.help", QtCriticalMsg)

namespace NdxComHelp {

void readHelpIndex(QTextStream &stream, QHash<QString, QString> &index)
{
    QString line;
    // One character more than the limit tells a line that is too long.
    while (stream.readLineInto(&line, IndexLineLimit + 1)) {
        if (line.size() > IndexLineLimit) {
            qCWarning(lcNdxComHelp)
                << "help index: a line longer than" << IndexLineLimit
                << "characters ends the reading after" << index.size() << "topics";
            break;
        }
        const int eq = line.indexOf(QLatin1Char('='));
        if (eq < 0)
            index.insert(line, line);
        else
            index.insert(line.left(eq), line.mid(eq + 1));
    }
}

void readHelpIndex(const QByteArray &bytes, QHash<QString, QString> &index, bool cut)
{
    QByteArray whole = bytes;
    if (cut)
        whole.truncate(whole.lastIndexOf('\n') + 1);
    QTextStream stream(&whole, QIODevice::ReadOnly | QIODevice::Text);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Qt 6 streams read UTF-8 unless told otherwise; Qt 5 ones would follow
    // the locale, so the same index would give other documents.
    stream.setCodec("UTF-8");
#endif
    readHelpIndex(stream, index);
}

bool isDocumentType(const QString &fileName)
{
    static const char *const types[] = {"htm", "html", "pdf", "chm", "txt"};
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    if (dot < 0)
        return false;
    const QStringView suffix = QStringView(fileName).mid(dot + 1);
    for (const char *type : types) {
        if (suffix.compare(QLatin1String(type), Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

namespace {

// A name Windows would open as a device whatever the folder and extension.
bool isDeviceName(QStringView name)
{
    const qsizetype dot = name.indexOf(QLatin1Char('.'));
    QStringView base = dot < 0 ? name : name.left(dot);
    while (base.endsWith(QLatin1Char(' ')))
        base.chop(1);
    static const char *const devices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    for (const char *device : devices) {
        if (base.compare(QLatin1String(device), Qt::CaseInsensitive) == 0)
            return true;
    }
    return base.size() == 4
        && (base.left(3).compare(QLatin1String("COM"), Qt::CaseInsensitive) == 0
            || base.left(3).compare(QLatin1String("LPT"), Qt::CaseInsensitive) == 0)
        && (base.at(3).isDigit() || base.at(3) == QChar(0xb9) || base.at(3) == QChar(0xb2)
            || base.at(3) == QChar(0xb3));
}

// One folder or file name of a document as every platform the suite runs on
// reads it alike.
bool isPlainName(QStringView name)
{
    for (const QChar c : name) {
        const ushort u = c.unicode();
        if (u < 0x20 || u == 0x7f || u == '<' || u == '>' || u == ':' || u == '"' || u == '|'
            || u == '?' || u == '*')
            return false;
    }
    // Windows drops trailing dots and blanks: "x.exe." would run x.exe.
    if (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' ')))
        return false;
    return !isDeviceName(name);
}

} // namespace

HelpDocument helpDocument(const QString &value)
{
    HelpDocument document;
    QString path = value;
    const qsizetype hash = path.indexOf(QLatin1Char('#'));
    if (hash >= 0) {
        document.fragment = path.mid(hash + 1);
        path.truncate(hash);
    }
    const qsizetype question = path.indexOf(QLatin1Char('?'));
    if (question >= 0) {
        document.query = path.mid(question + 1);
        path.truncate(question);
    }
    // Decoded as UTF-8 behind a sentinel: QString::fromUtf8 drops a byte
    // order mark at the very start (Qt 6) and keeps it anywhere else, so an
    // accepted path would not read the same a second time. The size is given:
    // Qt 5 would end a QByteArray at its first NUL, and a "%00" must stay.
    const QByteArray decoded = '/' + QByteArray::fromPercentEncoding(path.toUtf8());
    path = QString::fromUtf8(decoded.constData(), int(decoded.size())).mid(1);
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    // An absolute value ("/etc/passwd", "\\\\server\\share") means another
    // place than the folder, whatever joining it would give.
    if (path.startsWith(QLatin1Char('/')))
        return HelpDocument();

    QStringList names;
    for (const QString &name : path.split(QLatin1Char('/'))) {
        if (name.isEmpty() || name == QLatin1String("."))
            continue;
        if (name == QLatin1String("..")) {
            if (names.isEmpty())
                return HelpDocument();
            names.removeLast();
            continue;
        }
        if (!isPlainName(name))
            return HelpDocument();
        names << name;
    }
    if (names.isEmpty() || !isDocumentType(names.last()))
        return HelpDocument();
    document.path = names.join(QLatin1Char('/'));
    document.refused = false;
    return document;
}

bool staysInside(const QString &folder, const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return true;
    if (!info.isFile())
        return false;
    const QString real = info.canonicalFilePath();
    const QString realFolder = QFileInfo(folder).canonicalFilePath();
    if (real.isEmpty() || realFolder.isEmpty())
        return false;
    const QString prefix
        = realFolder.endsWith(QLatin1Char('/')) ? realFolder : realFolder + QLatin1Char('/');
#ifdef Q_OS_WIN
    return real.startsWith(prefix, Qt::CaseInsensitive);
#else
    return real.startsWith(prefix);
#endif
}

} // namespace NdxComHelp

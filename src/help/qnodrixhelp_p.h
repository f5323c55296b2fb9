#ifndef QNODRIXHELP_P_H
#define QNODRIXHELP_P_H

//
//  W A R N I N G
//  -------------
//
// This file is not part of the NdxCom API. It may change from version to
// version without notice, or even be removed.
//

#include "ndxcom_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QLoggingCategory>
#include <QtCore/QString>
#include <QtCore/QUrl>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

// "ndxcom.help": an index that cannot be read, and every document the help
// refuses to open, with the value the index gave. Off unless turned on.
Q_DECLARE_LOGGING_CATEGORY(lcNdxComHelp)

namespace NdxComHelp {

struct TopicEntry
{
    const char *className;
    const char *helpNumber;
};

// The fixed topic table, 168 entries.
NDXCOM_AUTOTEST_EXPORT extern const TopicEntry topics[];
NDXCOM_AUTOTEST_EXPORT extern const int topicCount;

// A help index is a few hundred lines; these bounds are far above any real
// one and keep a damaged or hostile index from exhausting memory: at most
// IndexSizeLimit bytes are read, and reading stops at the first line longer
// than IndexLineLimit characters. The entries read before either stop are
// kept; a line cut by the size limit is dropped.
constexpr qint64 IndexSizeLimit = qint64(16) << 20;
constexpr int IndexLineLimit = 64 * 1024;

// Reads a help index: each line is split at its first '='; the part before is
// the key, the rest (possibly empty, possibly holding more '=') the value. A
// line without '=' is its own key and value. No trimming, no comments, no
// sections; a later key replaces an earlier one. Stops at a line longer than
// IndexLineLimit.
NDXCOM_AUTOTEST_EXPORT void readHelpIndex(QTextStream &stream, QHash<QString, QString> &index);
// The same over bytes read from an index file (UTF-8 under Qt 5 and Qt 6).
// When `cut` is true the bytes stop at the size limit: their unfinished last
// line is not read.
NDXCOM_AUTOTEST_EXPORT void readHelpIndex(const QByteArray &bytes, QHash<QString, QString> &index,
                                          bool cut = false);

// Reads the help index at `path` (platform file): only a regular file, opened
// without waiting for a writer should a pipe stand there, and at most
// IndexSizeLimit bytes of it. False with *error set (the system's wording)
// when it cannot be read; *cut tells whether the file holds more.
bool readIndexFile(const QString &path, QByteArray *bytes, bool *cut, QString *error);

// The document an index value names, relative to the help language folder,
// or refused. The value is read as the address it used to be joined into: a
// '#' starts a fragment, a '?' a query, percent escapes are decoded once, and
// a backslash separates folders as on Windows. The document is refused when
// what is left
//  - is absolute, leaves the folder through "..", or holds a NUL or another control
//    character, or one of < > : " | ? * (':' also names a drive or a
//    Windows stream);
//  - has a name ending in a dot or a blank, which Windows would drop, or a
//    Windows device name (CON, NUL, COM1, ...);
//  - does not end in one of the document types of isDocumentType().
struct HelpDocument
{
    bool refused = true;
    QString path; // clean relative path, '/'-separated
    QString query;
    QString fragment;
};
NDXCOM_AUTOTEST_EXPORT HelpDocument helpDocument(const QString &value);

// The document types help may open: htm, html, pdf, chm, txt, in any case.
// Executables, scripts, shortcuts and links of every kind are not among them.
NDXCOM_AUTOTEST_EXPORT bool isDocumentType(const QString &fileName);

// The address of a local file or folder (platform file): "file:///" followed
// by the path without its leading slashes, so that "D:/Macchine/M1/help/it/
// pagina.htm" reads file:///D:/Macchine/M1/help/it/pagina.htm and a Linux
// folder keeps three slashes. The URL is made from the path, never parsed
// from joined text, so '#', '?', '%' and blanks in folder names stay part of
// the path. On Windows a UNC folder ("//server/share", "\\server\share")
// keeps its server as the address's host.
NDXCOM_AUTOTEST_EXPORT QUrl localAddress(const QString &path);

// Whether `path` may be opened as a document of `folder`: nothing stands
// there yet (the desktop's handler will say it is missing), or a regular file
// stands there whose real location, after every link, lies inside the real
// location of the folder.
NDXCOM_AUTOTEST_EXPORT bool staysInside(const QString &folder, const QString &path);

} // namespace NdxComHelp

#endif // QNODRIXHELP_P_H

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

#include <QtCore/QHash>
#include <QtCore/QString>

class QTextStream;

namespace QNodrixHelpPrivate {

struct TopicEntry
{
    const char *className;
    const char *helpNumber;
};

// The fixed topic table, 168 entries.
NDXCOM_EXPORT extern const TopicEntry topics[];
NDXCOM_EXPORT extern const int topicCount;

// Reads a help index: each line is split at its first '='; the part before is
// the key, the rest (possibly empty, possibly holding more '=') the value. A
// line without '=' is its own key and value. No trimming, no comments, no
// sections; a later key replaces an earlier one.
NDXCOM_EXPORT void readHelpIndex(QTextStream &stream, QHash<QString, QString> &index);

// The address of a help document: "file:///" followed by the help path,
// except that an absolute path that already starts with one or more '/' keeps
// three slashes in all ("file:///opt/m/help/it/x.htm", also for "//opt/m/"),
// so the address names the document rather than a host.
NDXCOM_EXPORT QString helpAddress(const QString &helpPath, const QString &language,
                                  const QString &document);

} // namespace QNodrixHelpPrivate

#endif // QNODRIXHELP_P_H

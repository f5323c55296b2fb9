#ifndef TSREADER_H
#define TSREADER_H

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace NdxComTest {

// The source texts of a Qt Linguist catalogue (.ts) as lupdate wrote them,
// grouped by translation context. Used to check that every text the library
// shows is marked so that lupdate extracts it under the class that shows it.
class TsCatalogue
{
public:
    // Reads `path`; false (and errorString()) when the file cannot be opened
    // or is not a well-formed catalogue.
    bool load(const QString &path);
    QString errorString() const { return m_error; }

    QStringList contexts() const { return m_sources.keys(); }
    // The source texts of `context` in file order; empty for an unknown one.
    QStringList sources(const QString &context) const { return m_sources.value(context); }
    bool contains(const QString &context, const QString &source) const;

    // The texts of `expected` that `context` lacks.
    QStringList missing(const QString &context, const QStringList &expected) const;
    // The texts of `context` that `expected` does not name.
    QStringList unexpected(const QString &context, const QStringList &expected) const;

private:
    QMap<QString, QStringList> m_sources;
    QString m_error;
};

} // namespace NdxComTest

#endif // TSREADER_H

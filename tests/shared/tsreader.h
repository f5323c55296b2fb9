#ifndef TSREADER_H
#define TSREADER_H

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace NdxComTest {

// One entry of a catalogue: the source text, its disambiguation, and the
// translation with its state as Qt Linguist left it.
struct TsMessage
{
    QString source;
    QString comment; // disambiguation, empty for none
    QString translation;
    // The translation's type attribute: empty when finished, otherwise
    // "unfinished", "vanished" or "obsolete".
    QString type;
    bool numerus = false;

    bool isFinished() const { return type.isEmpty() && !translation.isEmpty(); }
};

// The texts of a Qt Linguist catalogue (.ts) as lupdate wrote them, grouped by
// translation context. Used to check that every text the library shows is
// marked so that lupdate extracts it under the class that shows it, and that
// the translators' catalogues are complete.
class TsCatalogue
{
public:
    // Reads `path`; false (and errorString()) when the file cannot be opened
    // or is not a well-formed catalogue.
    bool load(const QString &path);
    QString errorString() const { return m_error; }

    // The language attribute of the catalogue ("en", "zh", ...).
    QString language() const { return m_language; }

    QStringList contexts() const { return m_messages.keys(); }
    // The source texts of `context` in file order; empty for an unknown one.
    QStringList sources(const QString &context) const;
    // The entries of `context` in file order.
    QList<TsMessage> messages(const QString &context) const { return m_messages.value(context); }
    bool contains(const QString &context, const QString &source) const;

    // The texts of `expected` that `context` lacks.
    QStringList missing(const QString &context, const QStringList &expected) const;
    // The texts of `context` that `expected` does not name.
    QStringList unexpected(const QString &context, const QStringList &expected) const;

private:
    QMap<QString, QList<TsMessage>> m_messages;
    QString m_language;
    QString m_error;
};

} // namespace NdxComTest

#endif // TSREADER_H

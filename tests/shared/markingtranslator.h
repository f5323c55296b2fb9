#ifndef MARKINGTRANSLATOR_H
#define MARKINGTRANSLATOR_H

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QTranslator>

namespace NdxComTest {

// A catalogue that "translates" every text of one context into
// prefix + source + suffix and remembers every request it gets, so a test
// sees which texts go through the translation, in which context, and which
// (the fixed titles) do not.
class MarkingTranslator : public QTranslator
{
public:
    explicit MarkingTranslator(const char *context, QString prefix = QStringLiteral("["),
                               QString suffix = QStringLiteral("]"))
        : m_context(context)
        , m_prefix(std::move(prefix))
        , m_suffix(std::move(suffix))
    { }

    QString translate(const char *context, const char *source, const char * = nullptr,
                      int = -1) const override
    {
        asked.append({QByteArray(context), QByteArray(source)});
        if (m_context != context)
            return QString();
        return m_prefix + QString::fromUtf8(source) + m_suffix;
    }
    bool isEmpty() const override { return false; }

    mutable QList<QPair<QByteArray, QByteArray>> asked;

private:
    QByteArray m_context;
    QString m_prefix;
    QString m_suffix;
};

} // namespace NdxComTest

#endif // MARKINGTRANSLATOR_H

#include "tsreader.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

namespace NdxComTest {

bool TsCatalogue::load(const QString &path)
{
    m_sources.clear();
    m_error.clear();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_error = file.errorString();
        return false;
    }

    // <TS><context><name/><message><source/>...</message>...</context>...</TS>
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto name = xml.name();
        if (name == QLatin1String("context")) {
            context.clear();
        } else if (name == QLatin1String("name")) {
            context = xml.readElementText();
            m_sources[context]; // a context may hold no message at all
        } else if (name == QLatin1String("source")) {
            m_sources[context] << xml.readElementText();
        }
    }
    if (xml.hasError()) {
        m_error
            = QStringLiteral("%1:%2: %3").arg(path).arg(xml.lineNumber()).arg(xml.errorString());
        m_sources.clear();
        return false;
    }
    return true;
}

bool TsCatalogue::contains(const QString &context, const QString &source) const
{
    return m_sources.value(context).contains(source);
}

QStringList TsCatalogue::missing(const QString &context, const QStringList &expected) const
{
    const QStringList have = sources(context);
    QStringList result;
    for (const QString &text : expected) {
        if (!have.contains(text) && !result.contains(text))
            result << text;
    }
    return result;
}

QStringList TsCatalogue::unexpected(const QString &context, const QStringList &expected) const
{
    QStringList result;
    for (const QString &text : sources(context)) {
        if (!expected.contains(text))
            result << text;
    }
    return result;
}

} // namespace NdxComTest

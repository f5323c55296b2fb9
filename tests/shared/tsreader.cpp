#include "tsreader.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

namespace NdxComTest {

bool TsCatalogue::load(const QString &path)
{
    m_messages.clear();
    m_language.clear();
    m_error.clear();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_error = file.errorString();
        return false;
    }

    // <TS language=".."><context><name/><message [numerus="yes"]><source/>
    // [<comment/>]<translation [type=".."]>...</translation></message>...
    QXmlStreamReader xml(&file);
    QString context;
    TsMessage *message = nullptr;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto name = xml.name();
        if (name == QLatin1String("TS")) {
            m_language = xml.attributes().value(QLatin1String("language")).toString();
        } else if (name == QLatin1String("context")) {
            context.clear();
            message = nullptr;
        } else if (name == QLatin1String("name")) {
            context = xml.readElementText();
            m_messages[context]; // a context may hold no message at all
        } else if (name == QLatin1String("message")) {
            QList<TsMessage> &list = m_messages[context];
            list.append(TsMessage());
            message = &list.last();
            message->numerus
                = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
        } else if (message && name == QLatin1String("source")) {
            message->source = xml.readElementText();
        } else if (message && name == QLatin1String("comment")) {
            message->comment = xml.readElementText();
        } else if (message && name == QLatin1String("translation")) {
            message->type = xml.attributes().value(QLatin1String("type")).toString();
            // Plural forms are <numerusform> children; their text is kept
            // together, which is enough to tell an empty translation.
            message->translation = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        }
    }
    if (xml.hasError()) {
        m_error
            = QStringLiteral("%1:%2: %3").arg(path).arg(xml.lineNumber()).arg(xml.errorString());
        m_messages.clear();
        return false;
    }
    return true;
}

QStringList TsCatalogue::sources(const QString &context) const
{
    QStringList result;
    for (const TsMessage &m : m_messages.value(context))
        result << m.source;
    return result;
}

bool TsCatalogue::contains(const QString &context, const QString &source) const
{
    for (const TsMessage &m : m_messages.value(context)) {
        if (m.source == source)
            return true;
    }
    return false;
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

#include "sourcerecorder.h"

QString SourceRecorder::translate(const char *context, const char *sourceText, const char *,
                                  int) const
{
    // The library's classes; Qt's own texts (the standard buttons' "OK", ...)
    // come from Qt's catalogues.
    const QByteArray name(context);
    if ((name.startsWith("QNodrix") || name == "QFileSharing") && sourceText) {
        const QString source = QString::fromUtf8(sourceText);
        if (!m_sources.contains(source))
            m_sources << source;
    }
    return QString();
}

QStringList SourceRecorder::take()
{
    QStringList sources;
    sources.swap(m_sources);
    return sources;
}

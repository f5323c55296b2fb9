#ifndef NDXCOM_SOURCERECORDER_H
#define NDXCOM_SOURCERECORDER_H

#include <QtCore/QStringList>
#include <QtCore/QTranslator>

// Notes the library's Italian source texts that the application looks up, so
// that a reviewer sees each dialog's sources beside its picture. It
// translates nothing: installed in front of the catalogue, it passes every
// request on.
class SourceRecorder : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;
    bool isEmpty() const override { return false; }

    // The sources asked for since the last call, each once, in order.
    QStringList take();

private:
    mutable QStringList m_sources;
};

#endif // NDXCOM_SOURCERECORDER_H

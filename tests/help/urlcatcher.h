#ifndef URLCATCHER_H
#define URLCATCHER_H

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QUrl>

// Receives what QDesktopServices::openUrl would open, once it is installed
// as the handler of the "file" scheme: no document is really opened.
class UrlCatcher : public QObject
{
    Q_OBJECT
public:
    QList<QUrl> urls;
public slots:
    void open(const QUrl &url) { urls << url; }
};

#endif // URLCATCHER_H

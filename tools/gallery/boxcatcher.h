#ifndef NDXCOM_BOXCATCHER_H
#define NDXCOM_BOXCATCHER_H

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

// Watches for the modal boxes a call opens, renders each into a picture and
// closes it, so a whole gallery can be rendered without anybody at the screen.
class BoxCatcher : public QObject
{
    Q_OBJECT

public:
    // Pictures go to <stem>.png, <stem>-2.png, ... in `folder`.
    BoxCatcher(const QString &folder, const QString &stem, QObject *parent = nullptr);

    QStringList files() const { return m_files; }
    QStringList texts() const { return m_texts; }
    QStringList titles() const { return m_titles; }
    // Per box, the texts of its buttons in the order Qt lays them out.
    QList<QStringList> buttons() const { return m_buttons; }

private:
    void poll();

    QTimer m_timer;
    QString m_folder;
    QString m_stem;
    QStringList m_files;
    QStringList m_texts;
    QStringList m_titles;
    QList<QStringList> m_buttons;
};

#endif // NDXCOM_BOXCATCHER_H

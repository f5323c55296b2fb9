#include "boxcatcher.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMessageBox>

namespace {
constexpr char kCaught[] = "_ndxcom_gallery_caught";
}

BoxCatcher::BoxCatcher(const QString &folder, const QString &stem, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
    , m_stem(stem)
{
    m_timer.setInterval(10);
    connect(&m_timer, &QTimer::timeout, this, &BoxCatcher::poll);
    m_timer.start();
}

void BoxCatcher::poll()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (!modal || !modal->isVisible() || modal->property(kCaught).toBool())
        return;
    modal->setProperty(kCaught, true);

    const QString name
        = m_files.isEmpty() ? m_stem : QStringLiteral("%1-%2").arg(m_stem).arg(m_files.size() + 1);
    const QString file = name + QStringLiteral(".png");
    modal->grab().save(m_folder + QLatin1Char('/') + file, "PNG");
    m_files << file;
    m_titles << modal->windowTitle();
    QStringList buttons;
    if (auto *box = qobject_cast<QMessageBox *>(modal)) {
        m_texts << box->text();
        for (QAbstractButton *button : box->buttons())
            buttons << button->text();
    } else {
        m_texts << QString();
    }
    m_buttons << buttons;

    // Boxes without an escape button ignore Escape and the title bar; reject()
    // ends any dialog.
    if (auto *dialog = qobject_cast<QDialog *>(modal))
        dialog->reject();
    else
        modal->close();
}

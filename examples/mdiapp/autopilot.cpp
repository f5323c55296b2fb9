#include "autopilot.h"

#include "mainwindow.h"
#include "projectwindow.h"

#include <QtCore/QFileInfo>
#include <QtCore/QTextStream>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>

#include <cstdio>

namespace {

void say(const QString &line)
{
    std::printf("%s\n", line.toLocal8Bit().constData());
    std::fflush(stdout);
}

QString lockOf(const QString &project)
{
    return QString(project).replace(QStringLiteral(".ndx"), QStringLiteral(".~lock"));
}

} // namespace

Autopilot::Autopilot(MainWindow *window, Steps steps)
    : QObject(window)
    , m_window(window)
    , m_steps(std::move(steps))
{
    connect(&m_dialogs, &QTimer::timeout, this, &Autopilot::answerDialogs);
    connect(&m_hold, &QTimer::timeout, this, [this] {
        // At most two minutes: a test that forgets to let go must not hang.
        if (QFileInfo::exists(m_steps.holdUntil) || ++m_holdTicks > 1200) {
            m_hold.stop();
            finish();
        }
    });
    m_dialogs.start(50);
}

void Autopilot::start()
{
    QTimer::singleShot(0, this, &Autopilot::run);
}

void Autopilot::answerDialogs()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (auto *dialog = qobject_cast<QFileDialog *>(modal)) {
        if (m_pendingSavePath.isEmpty()) {
            dialog->reject();
            return;
        }
        say(QStringLiteral("dialog: %1 in %2")
                .arg(dialog->windowTitle(), dialog->directory().path()));
        // Typed into the name field, as a person would.
        if (auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")))
            name->setText(m_pendingSavePath);
        else
            dialog->selectFile(m_pendingSavePath);
        m_pendingSavePath.clear();
        // accept() is protected in QFileDialog; as a slot it is called as
        // the dialog's own button would.
        QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
    } else if (auto *box = qobject_cast<QMessageBox *>(modal)) {
        say(QStringLiteral("box: ")
            + box->text().replace(QLatin1Char('\n'), QStringLiteral(" | ")));
        for (QAbstractButton *button : box->buttons()) {
            if (!m_steps.answer.isEmpty() && button->text() == m_steps.answer) {
                say(QStringLiteral("answer: ") + button->text());
                button->click();
                return;
            }
        }
        say(QStringLiteral("answer: (closed)"));
        box->reject();
    }
}

void Autopilot::showUrl(const QUrl &url)
{
    say(QStringLiteral("help: ") + url.toString());
}

void Autopilot::run()
{
    if (!m_steps.newSaveAs.isEmpty()) {
        ProjectWindow *project = m_window->newProject();
        say(QStringLiteral("new: ") + project->name());
        m_pendingSavePath = m_steps.newSaveAs;
        if (m_window->saveAs()) {
            say(QStringLiteral("saved: ") + project->path());
            say(QStringLiteral("lock: ") + lockOf(project->path())
                + (QFileInfo::exists(lockOf(project->path())) ? QStringLiteral(" present")
                                                              : QStringLiteral(" absent")));
        } else {
            say(QStringLiteral("not saved"));
        }
    }
    if (!m_steps.open.isEmpty()) {
        if (ProjectWindow *project = m_window->openProject(m_steps.open)) {
            say(QStringLiteral("opened: ") + m_steps.open
                + (project->isOpenReadOnly() ? QStringLiteral(" read-only")
                                             : QStringLiteral(" read-write")));
        } else {
            say(QStringLiteral("not opened: ") + m_steps.open);
        }
    }
    if (m_steps.help) {
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "showUrl");
        m_window->showHelp();
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    }
    for (const QString &path : m_window->recentFiles())
        say(QStringLiteral("recent: ") + path);
    if (!m_steps.screenshot.isEmpty()) {
        const bool saved = m_window->grab().save(m_steps.screenshot);
        say(QStringLiteral("screenshot: ") + m_steps.screenshot
            + (saved ? QString() : QStringLiteral(" (not written)")));
    }
    if (!m_steps.holdUntil.isEmpty()) {
        say(QStringLiteral("holding"));
        m_hold.start(100);
        return;
    }
    finish();
}

void Autopilot::finish()
{
    m_window->close();
    say(QStringLiteral("closed"));
    m_dialogs.stop();
    QCoreApplication::quit();
}

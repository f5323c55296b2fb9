#include "mainwindow.h"

#include "projectwindow.h"

#include <QNodrixCom>
#include <QNodrixHelp>
#include <QNodrixRegistry>

#include <QtGui/QCloseEvent>
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QtGui/QAction>
#else
#include <QtWidgets/QAction>
#endif
#include <QtGui/QKeySequence>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStatusBar>

namespace {
// The recent-file menu shows this many; the settings keep what they are given.
constexpr int RecentFilesShown = 8;
} // namespace

MainWindow::MainWindow()
    : m_mdiArea(new QMdiArea(this))
{
    setWindowTitle(QStringLiteral("Nodrix"));
    setObjectName(QStringLiteral("MainWindow"));
    m_mdiArea->setViewMode(QMdiArea::SubWindowView);
    setCentralWidget(m_mdiArea);

    const auto add
        = [this](QMenu *menu, const QString &text, QKeySequence::StandardKey key, auto slot) {
              QAction *action = menu->addAction(text);
              action->setShortcut(key);
              connect(action, &QAction::triggered, this, slot);
          };
    QMenu *file = menuBar()->addMenu(tr("&File"));
    add(file, tr("&New"), QKeySequence::New, &MainWindow::newProject);
    add(file, tr("&Open..."), QKeySequence::Open, &MainWindow::open);
    add(file, tr("&Save"), QKeySequence::Save, &MainWindow::save);
    add(file, tr("Save &as..."), QKeySequence::SaveAs, &MainWindow::saveAs);
    add(file, tr("&Close"), QKeySequence::Close, &MainWindow::closeProject);
    file->addSeparator();
    m_recentMenu = file->addMenu(tr("&Recent projects"));
    file->addSeparator();
    add(file, tr("E&xit"), QKeySequence::Quit, &QWidget::close);
    QMenu *help = menuBar()->addMenu(tr("&Help"));
    // F1 on every platform.
    add(help, tr("&Help"), QKeySequence::HelpContents, &MainWindow::showHelp);
    statusBar()->showMessage(tr("Ready"));
    updateRecentMenu();
}

ProjectWindow *MainWindow::activeProject() const
{
    QMdiSubWindow *sub = m_mdiArea->activeSubWindow();
    return sub ? qobject_cast<ProjectWindow *>(sub->widget()) : nullptr;
}

void MainWindow::restorePlacement()
{
    // The caller's values stand for keys the settings do not hold yet.
    QPoint position = pos();
    QSize size(900, 600);
    QByteArray state;
    const bool maximize = QNodrixRegistry().loadMainWndPlacement(&position, &size, &state);
    move(position);
    resize(size);
    restoreState(state);
    if (maximize)
        showMaximized();
    else
        show();
}

QStringList MainWindow::recentFiles() const
{
    QStringList files;
    QNodrixRegistry().loadRecentFileList(&files);
    return files;
}

ProjectWindow *MainWindow::newProject()
{
    // The first name free in the projects folder and among the open windows.
    QString name;
    QNodrixCom::makeNewProjectName(name);
    if (name.isEmpty())
        name = QStringLiteral("Prg1") + QNodrixCom::projectFilesExt();
    auto *project = new ProjectWindow;
    project->setNewName(name);
    QMdiSubWindow *sub = m_mdiArea->addSubWindow(project);
    sub->resize(420, 260);
    sub->show();
    return project;
}

ProjectWindow *MainWindow::openProject(const QString &path)
{
    auto *project = new ProjectWindow;
    if (!project->openFile(path)) {
        delete project;
        statusBar()->showMessage(tr("%1 was not opened").arg(path));
        return nullptr;
    }
    m_mdiArea->addSubWindow(project)->show();
    addRecentFile(path);
    statusBar()->showMessage(project->isOpenReadOnly() ? tr("%1: read only").arg(path)
                                                       : tr("%1: read and write").arg(path));
    return project;
}

void MainWindow::open()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open project"), QNodrixRegistry().getProjectsPath(),
        tr("Nodrix projects (*%1)").arg(QNodrixCom::projectFilesExt()));
    if (!path.isEmpty())
        openProject(path);
}

bool MainWindow::save()
{
    ProjectWindow *project = activeProject();
    if (!project || !project->save())
        return false;
    addRecentFile(project->path());
    return true;
}

bool MainWindow::saveAs()
{
    ProjectWindow *project = activeProject();
    if (!project || !project->saveAs())
        return false;
    addRecentFile(project->path());
    statusBar()->showMessage(tr("Saved %1").arg(project->path()));
    return true;
}

void MainWindow::closeProject()
{
    m_mdiArea->closeActiveSubWindow();
}

void MainWindow::showHelp()
{
    // The help object reads the machine folder and the language when it is
    // made, so one is made for each request.
    QNodrixHelp help;
    help.display(QStringLiteral("QDlgHelpNodrix"));
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    // Every project releases its lock as its window closes.
    m_mdiArea->closeAllSubWindows();
    QNodrixRegistry().saveMainWndPlacement(pos(), size(), saveState(), isMaximized());
    event->accept();
}

void MainWindow::addRecentFile(const QString &path)
{
    QStringList files = recentFiles();
    files.removeAll(path);
    files.prepend(path);
    QNodrixRegistry().saveRecentFileList(files.mid(0, RecentFilesShown));
    updateRecentMenu();
}

void MainWindow::updateRecentMenu()
{
    m_recentMenu->clear();
    const QStringList files = recentFiles();
    for (const QString &path : files) {
        QAction *action = m_recentMenu->addAction(QNodrixCom::strippedName(path));
        connect(action, &QAction::triggered, this, [this, path] { openProject(path); });
    }
    m_recentMenu->setEnabled(!files.isEmpty());
}

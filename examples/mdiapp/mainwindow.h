#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include <QtWidgets/QMainWindow>

QT_BEGIN_NAMESPACE
class QMdiArea;
class QMenu;
QT_END_NAMESPACE
class ProjectWindow;

// The application's main window: projects in an MDI area, the recent-file
// menu and the window placement kept in the settings through
// QNodrixRegistry, F1 opening the help through QNodrixHelp.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow();

    QMdiArea *mdiArea() const { return m_mdiArea; }
    ProjectWindow *activeProject() const;

    // Places and shows the window as it was when the application last closed.
    void restorePlacement();
    QStringList recentFiles() const;

public Q_SLOTS:
    ProjectWindow *newProject();
    ProjectWindow *openProject(const QString &path);
    void open();
    bool save();
    bool saveAs();
    void closeProject();
    void showHelp();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void addRecentFile(const QString &path);
    void updateRecentMenu();

    QMdiArea *m_mdiArea;
    QMenu *m_recentMenu;
};

#endif // MAINWINDOW_H

#ifndef PROJECTWINDOW_H
#define PROJECTWINDOW_H

#include <QtWidgets/QPlainTextEdit>

#include <memory>

class QFileSharing;

// One project in the MDI area. Its title is the project's file name with
// "[*]": the library counts such titles as names taken when it proposes the
// name of a new project. Each window holds one QFileSharing, which keeps the
// project's lock while the window is open.
class ProjectWindow : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ProjectWindow(QWidget *parent = nullptr);
    ~ProjectWindow() override;

    // A new project that is not on disk yet, under the proposed name.
    void setNewName(const QString &name);
    // Claims the project (after a question when another workstation holds
    // it, then read-only) and loads it; false when it was not opened.
    bool openFile(const QString &path);
    // Saves where the project lives; a new project, or one opened read-only
    // that the user agreed to rename, goes through saveAs().
    bool save();
    // The library's save-as dialog, then the claim of the new path, then the
    // writing; the lock of the old path is released only afterwards.
    bool saveAs();

    QString path() const { return m_path; } // empty while never saved
    QString name() const { return m_name; }
    bool isOpenReadOnly() const;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    bool write(const QString &path);
    void setPath(const QString &path);

    std::unique_ptr<QFileSharing> m_sharing;
    QString m_path;
    QString m_name;
};

#endif // PROJECTWINDOW_H

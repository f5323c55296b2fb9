#include "projectwindow.h"

#include <QFileSharing>
#include <QNodrixCom>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtGui/QCloseEvent>

ProjectWindow::ProjectWindow(QWidget *parent)
    : QPlainTextEdit(parent)
    , m_sharing(new QFileSharing)
{
    setAttribute(Qt::WA_DeleteOnClose);
    connect(document(), &QTextDocument::modificationChanged, this, &QWidget::setWindowModified);
}

ProjectWindow::~ProjectWindow() = default;

void ProjectWindow::setNewName(const QString &name)
{
    m_name = name;
    setWindowTitle(name + QStringLiteral("[*]"));
    setPlainText(tr("A new Nodrix project.\n"));
    document()->setModified(true);
}

bool ProjectWindow::openFile(const QString &path)
{
    auto sharing = std::make_unique<QFileSharing>();
    if (!sharing->open(path))
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        sharing->close();
        return false;
    }
    setPlainText(QString::fromUtf8(file.readAll()));
    m_sharing = std::move(sharing);
    setReadOnly(m_sharing->isOpenRdOnly());
    setPath(path);
    return true;
}

bool ProjectWindow::save()
{
    if (m_path.isEmpty())
        return saveAs();
    bool rename = false;
    if (!m_sharing->save(rename))
        return false;
    return rename ? saveAs() : write(m_path);
}

bool ProjectWindow::saveAs()
{
    // The dialog proposes the project's name in the projects folder of the
    // settings and enforces the machine's name rules.
    QString fileName = m_path.isEmpty() ? m_name : m_path;
    if (!QNodrixCom::getSaveAsFileName(this, tr("Save project as"), fileName, false))
        return false;
    // The new path is claimed before anything is written there; a fresh
    // object, so that the old path's lock stays ours until the end.
    auto sharing = std::make_unique<QFileSharing>();
    if (!sharing->saveAs(fileName))
        return false;
    if (!write(fileName)) {
        sharing->close();
        return false;
    }
    m_sharing->close();
    m_sharing = std::move(sharing);
    setReadOnly(false);
    setPath(fileName);
    return true;
}

bool ProjectWindow::isOpenReadOnly() const
{
    return isReadOnly();
}

void ProjectWindow::closeEvent(QCloseEvent *event)
{
    m_sharing->close();
    event->accept();
}

bool ProjectWindow::write(const QString &path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(toPlainText().toUtf8());
    if (!file.commit())
        return false;
    document()->setModified(false);
    return true;
}

void ProjectWindow::setPath(const QString &path)
{
    m_path = path;
    m_name = QFileInfo(path).fileName();
    setWindowTitle(m_name + QStringLiteral("[*]"));
}

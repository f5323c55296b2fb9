// The questions and the warning of shared projects. The sharing protocol is
// switched off in every installation; the gallery turns it on through the
// library's switch to show them.
#include "gallerycatalogue.h"

#include <QFileSharing>

#include <QtCore/QDataStream>
#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <memory>

namespace {

struct Scene
{
    QTemporaryDir dir;
    std::unique_ptr<QFileSharing> sharing;

    QString project() const { return dir.path() + QStringLiteral("/Calza.ndx"); }
    QString lock() const { return dir.path() + QStringLiteral("/Calza.~lock"); }

    // A lock held on another workstation.
    void lockElsewhere()
    {
        QFile file(lock());
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return;
        QDataStream out(&file);
        out.setByteOrder(QDataStream::LittleEndian);
        const QByteArray computer("OFFICINA-2"), user("mrossi");
        out << qint64(4242) << qint64(QDateTime::currentMSecsSinceEpoch());
        out << qint32(computer.size());
        out.writeRawData(computer.constData(), int(computer.size()));
        out << qint32(user.size());
        out.writeRawData(user.constData(), int(user.size()));
    }
};

GalleryEntry entry(const char *value, const QString &arguments, std::shared_ptr<Scene> scene,
                   std::function<void()> prepare, std::function<int()> run)
{
    GalleryEntry e;
    e.group = QStringLiteral("File sharing");
    e.family = QStringLiteral("sharing");
    e.value = QString::fromLatin1(value);
    e.arguments = arguments;
    e.prepare = [scene, prepare] {
        QFileSharing::setSharingControlEnabled(true);
        scene->sharing.reset(new QFileSharing(nullptr));
        prepare();
    };
    e.run = std::move(run);
    e.cleanup = [scene] {
        scene->sharing.reset();
        QFile::remove(scene->lock());
        QFileSharing::setSharingControlEnabled(false);
    };
    return e;
}

QVector<GalleryEntry> sharingEntries()
{
    auto scene = std::make_shared<Scene>();
    const QString held = QStringLiteral("Calza.ndx held by OFFICINA-2 / mrossi");
    return {
        entry(
            "openreadonly", held, scene, [scene] { scene->lockElsewhere(); },
            [scene] { return int(scene->sharing->open(scene->project())); }),
        entry(
            "saverename", QStringLiteral("Calza.ndx opened read-only"), scene,
            [scene] {
                scene->lockElsewhere();
                // The question whether to open it read-only: its "yes"
                // accepts the box.
                AutoAnswer yes(QMessageBox::AcceptRole);
                scene->sharing->open(scene->project());
            },
            [scene] {
                bool rename = false;
                const bool ok = scene->sharing->save(rename);
                return int(ok) | (rename ? 2 : 0);
            }),
        entry(
            "saveasinuse", held, scene, [scene] { scene->lockElsewhere(); },
            [scene] { return int(scene->sharing->saveAs(scene->project())); }),
        entry(
            "unlock", held, scene, [scene] { scene->lockElsewhere(); },
            [scene] { return int(scene->sharing->unlock(scene->project())); }),
    };
}

GalleryProvider::Registrar registrar(sharingEntries);

} // namespace

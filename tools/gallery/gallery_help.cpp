// The warning of a machine whose help index cannot be read.
#include "gallerycatalogue.h"

#include <QNodrixHelp>
#include <QNodrixRegistry>

#include <QtCore/QTemporaryDir>

#include <memory>

namespace {

QVector<GalleryEntry> helpEntries()
{
    auto machine = std::make_shared<QTemporaryDir>();
    GalleryEntry e;
    e.group = QStringLiteral("Help");
    e.family = QStringLiteral("help");
    e.value = QStringLiteral("indexwarning");
    e.arguments = QStringLiteral("a machine folder without help/HelpMac.ini");
    e.prepare = [machine] {
        QNodrixRegistry registry(nullptr);
        registry.setMachinePath(machine->path());
    };
    e.run = [] {
        QNodrixHelp help;
        return 0;
    };
    return {e};
}

GalleryProvider::Registrar registrar(helpEntries);

} // namespace

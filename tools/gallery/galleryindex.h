#ifndef NDXCOM_GALLERYINDEX_H
#define NDXCOM_GALLERYINDEX_H

#include "gallerycatalogue.h"

#include <QtCore/QMap>
#include <QtCore/QStringList>

// What one dialog showed in one language.
struct RenderedDialog
{
    QStringList pictures; // paths relative to the index
    QStringList texts; // per box: title, text and buttons, one per line
    int result = 0;
};

// One row of the index: a dialog, the library's Italian source texts it
// looked up, and what it showed in each language rendered.
struct IndexRow
{
    GalleryEntry entry;
    QStringList sources;
    QMap<QString, RenderedDialog> shown;
};

// Writes the contact sheet `path`: a picture per dialog in the chosen language
// (a selector switches between the languages rendered; the address's #code
// picks one), beside it the Italian sources, the family, value, arguments,
// the text shown and the result. `screen` says what screen the pictures were
// rendered on.
bool writeIndex(const QString &path, const QStringList &languages, const QVector<IndexRow> &rows,
                const QString &screen, QString *error);

#endif // NDXCOM_GALLERYINDEX_H

#ifndef NDXCOM_GALLERYTRANSLATIONS_H
#define NDXCOM_GALLERYTRANSLATIONS_H

#include <QtCore/QStringList>

// "it" (the source language, no catalogue) and every catalogue found.
QStringList availableLanguages();

// Installs the library's catalogue of `code` ("en", "zh", "szh", "es") on the
// application, replacing the previous one; "it" removes it. False when no
// catalogue of that language was found.
bool installLanguage(const QString &code);

// Where catalogues are looked for: $NDXCOM_TRANSLATIONS, the build tree, then
// <prefix>/share/ndxcom/translations beside the installed program.
QStringList translationFolders();

#endif // NDXCOM_GALLERYTRANSLATIONS_H

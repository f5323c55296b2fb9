#ifndef NDXCOM_TOOLLANGUAGES_H
#define NDXCOM_TOOLLANGUAGES_H

#include <QtCore/QStringList>

// The languages of the suite as the tools name them: "it" (the source texts,
// no catalogue) and the catalogues' codes "en", "zh" (traditional Chinese),
// "szh" (simplified Chinese) and "es", in this order.
QStringList suiteLanguages();

// The language's own name, for people choosing one ("Español", ...).
QString languageName(const QString &code);

// "it" and every language whose catalogue was found.
QStringList availableLanguages();

// Installs the library's catalogue of `code` on the application, replacing
// the previous one; "it" removes it. For Chinese it also puts the matching
// CJK font (Noto Sans CJK TC or SC, when installed) behind the application's
// font, so that the characters are drawn in the forms of the reader's
// script. False when no catalogue of that language was found; the
// application then keeps its previous language.
bool installLanguage(const QString &code);

// The language installLanguage() last installed; "it" before.
QString installedLanguage();

// Where catalogues are looked for: $NDXCOM_TRANSLATIONS, the build tree, then
// <prefix>/share/ndxcom/translations beside the installed program.
QStringList translationFolders();

#endif // NDXCOM_TOOLLANGUAGES_H

#ifndef NDXCOM_GALLERYCATALOGUE_H
#define NDXCOM_GALLERYCATALOGUE_H

#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtWidgets/QMessageBox>

#include <functional>

// One dialog the library can show, with realistic sample arguments.
struct GalleryEntry
{
    QString group; // tree group shown to the reader ("Advisors: scs")
    QString family; // file-name family ("presentation", "scs", "rule", ...)
    QString value; // value within the family ("question", "4", "12", ...)
    QString arguments; // the sample arguments, as the reader sees them
    // Runs the real library call; returns the code the library returned (0
    // for calls without a result).
    std::function<int()> run;
    // Optional: sets the scene before run() (a lock file, an answered
    // question) and clears it afterwards; neither is pictured.
    std::function<void()> prepare;
    std::function<void()> cleanup;

    QString stem() const { return family + QLatin1Char('-') + value; }
};

// Extra entries that need more than a call (file sharing, help); each
// gallery_*.cpp may register a provider.
struct GalleryProvider
{
    using Provide = std::function<QVector<GalleryEntry>()>;
    static QVector<Provide> &all();
    struct Registrar
    {
        explicit Registrar(Provide provide) { all().append(std::move(provide)); }
    };
};

// Answers the boxes a preparation step opens by clicking the first button of
// `role` in each (rejecting a box without one), for as long as the object
// lives. By role, never by text: the texts change with the language.
class AutoAnswer
{
public:
    explicit AutoAnswer(QMessageBox::ButtonRole role);
    ~AutoAnswer();

private:
    struct Private;
    Private *d;
};

// Every entry, in the order of the tree.
QVector<GalleryEntry> galleryEntries();

#endif // NDXCOM_GALLERYCATALOGUE_H

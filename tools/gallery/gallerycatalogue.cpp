#include "gallerycatalogue.h"

#include "showfamily.h"

#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

QVector<GalleryProvider::Provide> &GalleryProvider::all()
{
    static QVector<Provide> providers;
    return providers;
}

struct AutoAnswer::Private
{
    QTimer timer;
};

AutoAnswer::AutoAnswer(QMessageBox::ButtonRole role)
    : d(new Private)
{
    d->timer.setInterval(5);
    QObject::connect(&d->timer, &QTimer::timeout, &d->timer, [role] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        for (QAbstractButton *b : box->buttons()) {
            if (box->buttonRole(b) == role) {
                b->click();
                return;
            }
        }
        box->reject();
    });
    d->timer.start();
}

AutoAnswer::~AutoAnswer()
{
    delete d;
}

namespace {

const ShowFamily *family(const char *kind, const char *name)
{
    for (const ShowFamily &f : ShowFamily::all()) {
        if (qstrcmp(f.kind, kind) == 0 && qstrcmp(f.name, name) == 0)
            return &f;
    }
    return nullptr;
}

QString quoted(const QStringList &arguments)
{
    QStringList shown;
    for (QString a : arguments)
        shown << QLatin1Char('"') + a.replace(QLatin1Char('\n'), QLatin1String("\\n"))
                + QLatin1Char('"');
    return shown.join(QLatin1String(", "));
}

void add(QVector<GalleryEntry> &entries, const QString &group, const char *kind, const char *name,
         const QString &fileFamily, const QString &value, int number, const QStringList &arguments)
{
    const ShowFamily *f = family(kind, name);
    if (!f)
        return;
    GalleryEntry e;
    e.group = group;
    e.family = fileFamily;
    e.value = value;
    e.arguments = quoted(arguments);
    e.run = [f, number, arguments] { return f->run(number, arguments); };
    entries.append(e);
}

// Sample arguments per advisor family: values that show something, and what
// a suite application would pass.
struct AdvisorSamples
{
    const char *name;
    int first;
    int last;
    QStringList arguments;
};

} // namespace

QVector<GalleryEntry> galleryEntries()
{
    QVector<GalleryEntry> entries;
    const QString sampleText = QStringLiteral("Il progetto Calza.ndx è stato modificato.\n"
                                              "Vuoi salvare le modifiche ?");

    const char *presentations[] = {"question",         "warning",
                                   "yesnoignore",      "resizescs",
                                   "warningclose",     "criticalclose",
                                   "warningok",        "warningclosehelp",
                                   "informationclose", "informationyesnohelp",
                                   "yesnonewname"};
    for (const char *name : presentations)
        add(entries, QStringLiteral("Presentations"), "presentation", name,
            QStringLiteral("presentation"), QString::fromLatin1(name), 0, {sampleText});

    const QList<QPair<const char *, QStringList>> reports = {
        {"error",
         {QStringLiteral("QNdxDocument"), QStringLiteral("load"),
          QStringLiteral("Archivio non leggibile")}},
        {"errorversion",
         {QStringLiteral("QNdxDocument"), QStringLiteral("3"), QStringLiteral("-1"),
          QStringLiteral("load"), QStringLiteral("Versione non supportata")}},
        {"warning",
         {QStringLiteral("QNdxDocument"), QStringLiteral("save"),
          QStringLiteral("Disco quasi pieno")}},
        {"info", {QStringLiteral("Elaborazione completata")}},
        {"fileopen",
         {QStringLiteral("/srv/progetti/Calza.ndx"), QStringLiteral("Permesso negato")}},
        {"fileread",
         {QStringLiteral("/srv/progetti/Calza.ndx"), QStringLiteral("Errore di lettura")}},
        {"filewrite", {QStringLiteral("/srv/progetti/Calza.ndx"), QStringLiteral("Disco pieno")}},
        {"datastreamfile", {QStringLiteral("/srv/progetti/Calza.ndx")}},
        {"datastreamread",
         {QStringLiteral("QNdxPlane"), QStringLiteral("5"), QStringLiteral("7"),
          QStringLiteral("readpastend")}},
        {"datastreamversion",
         {QStringLiteral("QNdxPlane"), QStringLiteral("5"), QStringLiteral("9"),
          QStringLiteral("readPlane")}},
    };
    for (const auto &r : reports)
        add(entries, QStringLiteral("Reports"), "report", r.first, QStringLiteral("report"),
            QString::fromLatin1(r.first), 0, r.second);

    const AdvisorSamples advisors[] = {
        {"appl", 0, 0, {QStringLiteral("2.1.0")}},
        {"illegalname", -1, 5, {QStringLiteral("@ ,;'!?"), QStringLiteral("32")}},
        {"filename", 0, 1, {QStringLiteral("#&"), QStringLiteral("32")}},
        {"projectdoc", 0, 2, {}},
        {"modifydata", 1, 5, {}},
        {"machinefile",
         0,
         6,
         {QStringLiteral("Macchina.dax"), QStringLiteral("1.2.0"), QStringLiteral("1.1.4")}},
        {"machinexml",
         0,
         1,
         {QStringLiteral("coding.xml"), QStringLiteral("12"), QStringLiteral("Cmd"),
          QStringLiteral("id"), QStringLiteral("tipo")}},
        {"scs", 1, 12, {QStringLiteral("1, 3, 5")}},
        {"createsize", 0, 13, {QStringLiteral("Velocità")}},
        {"modifyproj", 0, 1, {QStringLiteral("Platò, Oil"), QStringLiteral("3")}},
        {"protectedmode", 0, 1, {}},
        {"freecmd", 0, 14, {QStringLiteral("7"), QStringLiteral("PAT_7B")}},
        {"scheme", 0, 5, {QStringLiteral("4")}},
        {"skel", 0, 6, {QStringLiteral("12")}},
        {"elab", 1, 8, {QStringLiteral("5"), QStringLiteral("PAT_7B")}},
        {"commandplane", 1, 8, {QStringLiteral("15")}},
        {"bodyplane", 1, 11, {QStringLiteral("2"), QStringLiteral("15"), QStringLiteral("300")}},
    };
    for (const AdvisorSamples &a : advisors) {
        for (int v = a.first; v <= a.last; ++v) {
            QStringList arguments = a.arguments;
            if (qstrcmp(a.name, "machinexml") == 0 && v == 0)
                arguments
                    = QStringList {QStringLiteral("coding.xml"), QStringLiteral("tag non chiuso"),
                                   QStringLiteral("12"), QStringLiteral("7")};
            if (qstrcmp(a.name, "illegalname") == 0 && v == 2)
                arguments = QStringList {QStringLiteral("@"), QStringLiteral("32")};
            add(entries, QStringLiteral("Advisors: %1").arg(QLatin1String(a.name)), "advisor",
                a.name, QString::fromLatin1(a.name), QString::number(v), v, arguments);
        }
    }

    for (int code = 1; code <= 65; ++code) {
        QStringList parameters;
        for (int p = 1; p <= 5; ++p)
            parameters << QStringLiteral("P%1").arg(p);
        add(entries, QStringLiteral("Module rules"), "rule", "", QStringLiteral("rule"),
            QString::number(code), code, parameters);
    }

    for (const GalleryProvider::Provide &provide : GalleryProvider::all())
        entries += provide();
    return entries;
}

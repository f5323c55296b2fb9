#include "dialogdriver.h"
#include "gallerycatalogue.h"
#include "ndxcomtest.h"
#include "toollanguages.h"
#include "tsreader.h"

#include <QtCore/QHash>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QTranslator>
#include <QtTest/QtTest>

#include <utility>

using namespace NdxComTest;

// Every dialog of the gallery, in every language of the suite: each button is
// as wide as its text asks, no text of a box is cut, and no Italian source
// text that the dialog looked up shows where the language's catalogue
// translates it.
class tst_BoxesFit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void dialogs_data();
    void dialogs();

private:
    // An Italian source text that a catalogue translates into something
    // else, as it would show untranslated: itself, or with its placeholders
    // filled.
    struct Untranslated
    {
        QString source;
        QString head; // the literal text before the first placeholder
        QRegularExpression filled; // empty when the source has no placeholder
        bool shows(const QString &text) const;
    };

    QVector<GalleryEntry> m_entries;
    // By language, then by context and source.
    QMap<QString, QHash<QPair<QByteArray, QByteArray>, Untranslated>> m_untranslated;
    QSet<QString> m_sources; // every Italian source text
    QString m_installed;
};

namespace {

const QRegularExpression &placeholder()
{
    static const QRegularExpression re(QStringLiteral("%L?[0-9]{1,2}"));
    return re;
}

// Notes every text the application looks up while a dialog is shown; it
// translates nothing, so the catalogue behind it answers as usual.
class LookupRecorder : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        asked.insert({QByteArray(context), QByteArray(source)});
        return QString();
    }
    bool isEmpty() const override { return false; }

    mutable QSet<QPair<QByteArray, QByteArray>> asked;
};

LookupRecorder &recorder()
{
    static LookupRecorder instance;
    return instance;
}

} // namespace

bool tst_BoxesFit::Untranslated::shows(const QString &text) const
{
    if (filled.pattern().isEmpty())
        return text == source;
    return text.startsWith(head) && filled.match(text).hasMatch();
}

void tst_BoxesFit::initTestCase()
{
    m_entries = galleryEntries();
    QVERIFY(m_entries.size() > 200);
    for (const QString &code : suiteLanguages().mid(1)) {
        TsCatalogue catalogue;
        QVERIFY2(catalogue.load(QStringLiteral(NDXCOM_CATALOGUE_DIR "/ndxcom_%1.ts").arg(code)),
                 qPrintable(catalogue.errorString()));
        auto &untranslated = m_untranslated[code];
        for (const QString &context : catalogue.contexts()) {
            for (const TsMessage &m : catalogue.messages(context)) {
                m_sources.insert(m.source);
                if (m.translation.isEmpty() || m.translation == m.source)
                    continue;
                Untranslated u;
                u.source = m.source;
                const QStringList pieces = m.source.split(placeholder());
                // A source of placeholders and blanks alone ("%1\n") would
                // match any text.
                if (pieces.join(QString()).trimmed().isEmpty())
                    continue;
                if (pieces.size() > 1) {
                    QStringList escaped;
                    for (const QString &piece : pieces)
                        escaped << QRegularExpression::escape(piece);
                    u.head = pieces.first();
                    u.filled = QRegularExpression(
                        QRegularExpression::anchoredPattern(escaped.join(QLatin1String("(.*)"))),
                        QRegularExpression::DotMatchesEverythingOption);
                }
                untranslated.insert({context.toUtf8(), m.source.toUtf8()}, u);
            }
        }
    }
}

void tst_BoxesFit::cleanupTestCase()
{
    installLanguage(QStringLiteral("it"));
}

void tst_BoxesFit::dialogs_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("entry");
    for (const QString &code : suiteLanguages()) {
        for (int i = 0; i < m_entries.size(); ++i)
            QTest::addRow("%s/%s", qPrintable(code), qPrintable(m_entries.at(i).stem()))
                << code << i;
    }
}

void tst_BoxesFit::dialogs()
{
    QFETCH(QString, language);
    QFETCH(int, entry);
    if (language != m_installed) {
        QVERIFY2(installLanguage(language),
                 qPrintable(QStringLiteral("no catalogue for %1 in %2")
                                .arg(language, translationFolders().join(QLatin1String(", ")))));
        m_installed = language;
    }
    const GalleryEntry &e = m_entries.at(entry);
    if (e.prepare)
        e.prepare();
    // In front of the catalogue, so that it sees every request.
    QCoreApplication::removeTranslator(&recorder());
    QCoreApplication::installTranslator(&recorder());
    recorder().asked.clear();
    DialogDriver driver;
    const QList<BoxRecord> boxes = driver.run([&e] { e.run(); });
    QCoreApplication::removeTranslator(&recorder());
    if (e.cleanup)
        e.cleanup();
    QVERIFY2(!boxes.isEmpty(), "the dialog showed nothing");

    // The library's texts this dialog asked for that the catalogue
    // translates. Texts that never reach the catalogue (the fixed title, the
    // help warning, Qt's standard buttons) are no business of it.
    QList<Untranslated> asked;
    const auto &untranslated = m_untranslated.value(language);
    for (const auto &key : std::as_const(recorder().asked)) {
        const auto it = untranslated.constFind(key);
        if (it != untranslated.constEnd())
            asked << *it;
    }

    for (const BoxRecord &box : boxes) {
        for (const ButtonRecord &b : box.buttons) {
            // A fixed width belongs to the Italian labels, which keep it
            // (tst_qnodrixmessagebox_size); only translations grow.
            const bool fixed = b.minimumWidth == b.maximumWidth;
            if (fixed && m_sources.contains(b.text))
                continue;
            QVERIFY2(b.width >= b.sizeHintWidth,
                     qPrintable(QStringLiteral("the button \"%1\" is %2 pixels wide, its text "
                                               "needs %3")
                                    .arg(b.text)
                                    .arg(b.width)
                                    .arg(b.sizeHintWidth)));
        }
        QVERIFY2(box.labelWidth >= box.labelMinimumWidth
                     && box.labelHeight >= box.labelHeightForWidth,
                 qPrintable(QStringLiteral("the text is cut: %1x%2 shown, %3x%4 needed")
                                .arg(box.labelWidth)
                                .arg(box.labelHeight)
                                .arg(box.labelMinimumWidth)
                                .arg(box.labelHeightForWidth)));
        QStringList shown {box.title, box.text};
        shown += box.buttonTexts();
        for (const QString &text : shown) {
            for (const Untranslated &u : asked)
                QVERIFY2(!u.shows(text),
                         qPrintable(QStringLiteral("shows the Italian \"%1\", which the "
                                                   "catalogue translates")
                                        .arg(u.source)));
        }
    }
}

NDXCOM_TEST_MAIN(tst_BoxesFit)
#include "tst_boxesfit.moc"

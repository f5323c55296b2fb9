#include "ndxcomtest.h"
#include "tsreader.h"

#include <QtCore/QDir>
#include <QtTest/QtTest>

using namespace NdxComTest;

// The catalogues in translations/ are what translators receive: they must
// hold every text the library shows, under the class that shows it, and
// nothing twice. `ndxcom_lupdate` refreshes them; this test fails when the
// sources gained or lost a text since.
class tst_Catalogues : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void contextsAndCounts_data();
    void contextsAndCounts();
    void noTextTwice();
    void committedCataloguesAreCurrent_data();
    void committedCataloguesAreCurrent();

private:
    TsCatalogue m_extracted;
};

void tst_Catalogues::initTestCase()
{
    QVERIFY2(m_extracted.load(QStringLiteral(NDXCOM_EXTRACTED_TS)),
             qPrintable(m_extracted.errorString()));
}

void tst_Catalogues::contextsAndCounts_data()
{
    QTest::addColumn<QString>("context");
    QTest::addColumn<int>("count");
    // The plane names, the module operations and the yarn labels.
    QTest::newRow("QNodrixCom") << QStringLiteral("QNodrixCom") << 20;
    // The read-only, rename and unlock questions and the in-use warning.
    QTest::newRow("QFileSharing") << QStringLiteral("QFileSharing") << 4;
    // The help index warning is shown as it stands, untranslated.
    QTest::newRow("QNodrixHelp") << QStringLiteral("QNodrixHelp") << 0;
    QTest::newRow("QNodrixRegistry") << QStringLiteral("QNodrixRegistry") << 0;
}

void tst_Catalogues::contextsAndCounts()
{
    QFETCH(QString, context);
    QFETCH(int, count);
    QCOMPARE(m_extracted.sources(context).size(), count);
    const QSet<QString> known {QStringLiteral("QNodrixMessageBox"), QStringLiteral("QNodrixCom"),
                               QStringLiteral("QFileSharing")};
    for (const QString &c : m_extracted.contexts())
        QVERIFY2(known.contains(c), qPrintable(c));
    // The message box's own count is checked text by text by tst_messagetexts.
    QVERIFY(m_extracted.sources(QStringLiteral("QNodrixMessageBox")).size() > 200);
}

void tst_Catalogues::noTextTwice()
{
    for (const QString &context : m_extracted.contexts()) {
        QStringList sources = m_extracted.sources(context);
        QCOMPARE(sources.removeDuplicates(), 0);
    }
}

void tst_Catalogues::committedCataloguesAreCurrent_data()
{
    QTest::addColumn<QString>("file");
    for (const char *language : {"en", "zh", "szh", "es"})
        QTest::newRow(language)
            << QStringLiteral(NDXCOM_CATALOGUE_DIR "/ndxcom_%1.ts").arg(QLatin1String(language));
}

void tst_Catalogues::committedCataloguesAreCurrent()
{
    QFETCH(QString, file);
    TsCatalogue committed;
    QVERIFY2(committed.load(file), qPrintable(committed.errorString()));
    QStringList contexts = committed.contexts();
    QStringList extractedContexts = m_extracted.contexts();
    contexts.sort();
    extractedContexts.sort();
    QCOMPARE(contexts, extractedContexts);
    for (const QString &context : extractedContexts) {
        const QStringList expected = m_extracted.sources(context);
        QCOMPARE(committed.missing(context, expected), QStringList());
        QCOMPARE(committed.unexpected(context, expected), QStringList());
    }
    // Line numbers go stale with every edit of a source, and a catalogue that
    // changes without a text changing hides the real changes from review.
    QFile raw(file);
    QVERIFY(raw.open(QIODevice::ReadOnly));
    QVERIFY2(!raw.readAll().contains("<location"), "catalogue carries location lines");
}

NDXCOM_TEST_MAIN(tst_Catalogues)
#include "tst_catalogues.moc"

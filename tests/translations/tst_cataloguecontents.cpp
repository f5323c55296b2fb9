#include "ndxcomtest.h"
#include "tsreader.h"

#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtCore/QTranslator>
#include <QtTest/QtTest>

using namespace NdxComTest;

// What the translators deliver: every entry of the four catalogues finished,
// with the placeholders its source has, and compiled into the .qm files the
// library installs. One row per catalogue entry, so that a failure names the
// entry to fix.
class tst_CatalogueContents : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void finished_data() { entries(); }
    void finished();
    void placeholders_data() { entries(); }
    void placeholders();
    void compiled_data() { entries(); }
    void compiled();

private:
    void entries();

    QMap<QString, TsCatalogue> m_catalogues;
    QMap<QString, QTranslator *> m_compiled;
};

namespace {

const char *const kLanguages[] = {"en", "zh", "szh", "es"};

// How often each of %1 ... %99 occurs; QString::arg reads at most two digits
// after the '%' (and an optional 'L' for the localized form).
QMap<int, int> placeholderCounts(const QString &text)
{
    static const QRegularExpression escape(QStringLiteral("%L?([0-9]{1,2})"));
    QMap<int, int> counts;
    auto it = escape.globalMatch(text);
    while (it.hasNext()) {
        const int number = it.next().captured(1).toInt();
        if (number > 0)
            ++counts[number];
    }
    return counts;
}

QString describe(const QMap<int, int> &counts)
{
    QStringList parts;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        parts << QStringLiteral("%%1 x%2").arg(it.key()).arg(it.value());
    return parts.isEmpty() ? QStringLiteral("none") : parts.join(QLatin1String(", "));
}

// A row name that a reader finds in the catalogue: the first line of the
// source, shortened.
QString tag(const QString &language, const QString &context, int index, const QString &source)
{
    QString head = source.section(QLatin1Char('\n'), 0, 0).simplified();
    if (head.size() > 40)
        head = head.left(40) + QStringLiteral("...");
    return QStringLiteral("%1/%2#%3 %4").arg(language, context).arg(index).arg(head);
}

} // namespace

void tst_CatalogueContents::initTestCase()
{
    for (const char *language : kLanguages) {
        const QString code = QLatin1String(language);
        TsCatalogue &catalogue = m_catalogues[code];
        const QString file = QStringLiteral(NDXCOM_CATALOGUE_DIR "/ndxcom_%1.ts").arg(code);
        QVERIFY2(catalogue.load(file), qPrintable(catalogue.errorString()));
        // The .qm files the build compiled from them.
        auto *translator = new QTranslator(this);
        QVERIFY2(translator->load(QStringLiteral("ndxcom_") + code, QStringLiteral(NDXCOM_QM_DIR)),
                 qPrintable(QStringLiteral("no ndxcom_%1.qm in " NDXCOM_QM_DIR).arg(code)));
        m_compiled.insert(code, translator);
    }
}

void tst_CatalogueContents::entries()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("comment");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QString>("type");
    for (const char *language : kLanguages) {
        const QString code = QLatin1String(language);
        const TsCatalogue &catalogue = m_catalogues.value(code);
        for (const QString &context : catalogue.contexts()) {
            const QList<TsMessage> messages = catalogue.messages(context);
            for (int i = 0; i < messages.size(); ++i) {
                const TsMessage &m = messages.at(i);
                QTest::newRow(qPrintable(tag(code, context, i + 1, m.source)))
                    << code << context << m.source << m.comment << m.translation << m.type;
            }
        }
    }
}

void tst_CatalogueContents::finished()
{
    QFETCH(QString, translation);
    QFETCH(QString, type);
    QVERIFY2(!translation.trimmed().isEmpty(), "no translation");
    // Unfinished entries are the translator's own "to review" mark; vanished
    // and obsolete ones no longer exist in the sources.
    QVERIFY2(type.isEmpty(), qPrintable(QStringLiteral("translation marked %1").arg(type)));
}

void tst_CatalogueContents::placeholders()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    if (translation.isEmpty())
        QSKIP("no translation yet (see finished())");
    const QMap<int, int> expected = placeholderCounts(source);
    const QMap<int, int> found = placeholderCounts(translation);
    const QString message = QStringLiteral("source has %1, translation has %2")
                                .arg(describe(expected), describe(found));
    // The same placeholders, and one filled once in the source is written
    // once in the translation: a second copy would show the value twice, a
    // missing one would shift every later argument.
    QVERIFY2(expected.keys() == found.keys(), qPrintable(message));
    for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
        if (it.value() == 1)
            QVERIFY2(found.value(it.key()) == 1, qPrintable(message));
    }
}

void tst_CatalogueContents::compiled()
{
    QFETCH(QString, language);
    QFETCH(QString, context);
    QFETCH(QString, source);
    QFETCH(QString, comment);
    QFETCH(QString, translation);
    const QTranslator *translator = m_compiled.value(language);
    QVERIFY(translator);
    const QByteArray disambiguation = comment.toUtf8();
    const QString shown
        = translator->translate(context.toUtf8().constData(), source.toUtf8().constData(),
                                comment.isEmpty() ? nullptr : disambiguation.constData());
    QVERIFY2(!shown.isEmpty(), "the .qm file has no translation for this entry");
    QCOMPARE(shown, translation);
}

NDXCOM_TEST_MAIN(tst_CatalogueContents)
#include "tst_cataloguecontents.moc"

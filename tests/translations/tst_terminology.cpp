#include "glossary.h"
#include "ndxcomtest.h"
#include "tsreader.h"

#include <QtTest/QtTest>

using namespace NdxComTest;

// A knitter meets the same words in every dialog of every application of the
// suite: a term of the glossary is translated the glossary's way wherever a
// source text uses it, unless the glossary lists the text as an exception.
class tst_Terminology : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void termsComplete_data();
    void termsComplete();
    void exceptionsNameRealTexts_data();
    void exceptionsNameRealTexts();
    void glossaryTermsRendered_data();
    void glossaryTermsRendered();
    void avoidancesNameRealTexts_data();
    void avoidancesNameRealTexts();
    void renderingsAvoided_data();
    void renderingsAvoided();
    void wordMatching_data();
    void wordMatching();
    void numbers_data();
    void numbers();

private:
    Glossary m_glossary;
    QMap<QString, TsCatalogue> m_catalogues;
};

namespace {

const char *const kLanguages[] = {"en", "zh", "szh", "es"};

bool isChinese(const QString &language)
{
    return language == QLatin1String("zh") || language == QLatin1String("szh");
}

QString head(const QString &text)
{
    QString line = text.section(QLatin1Char('\n'), 0, 0).simplified();
    return line.size() > 40 ? line.left(40) + QStringLiteral("...") : line;
}

bool occursIn(const QString &source, const QStringList &italian)
{
    for (const QString &form : italian) {
        if (Glossary::containsWord(source, form))
            return true;
    }
    return false;
}

bool occursIn(const QString &source, const GlossaryTerm &term)
{
    return occursIn(source, term.italian);
}

bool isNumbered(const QStringList &forms)
{
    for (const QString &form : forms) {
        if (form.contains(QLatin1Char('#')))
            return true;
    }
    return false;
}

// The numbers a source text gives the "#" of a term's Italian forms, each
// once: "da 8 a 4 cadute" asks for the translation of "4 cadute".
QStringList numbersIn(const QString &source, const QStringList &italian)
{
    QStringList result;
    for (const QString &form : italian) {
        for (const QString &number : Glossary::numbers(source, form)) {
            if (!result.contains(number))
                result << number;
        }
    }
    return result;
}

QStringList withNumber(QStringList forms, const QString &number)
{
    for (QString &form : forms)
        form.replace(QLatin1Char('#'), number);
    return forms;
}

bool rendersWith(const QString &language, const QString &translation, const QString &form)
{
    return isChinese(language) ? Glossary::containsText(translation, form)
                               : Glossary::containsWord(translation, form);
}

} // namespace

void tst_Terminology::initTestCase()
{
    QVERIFY2(m_glossary.load(QStringLiteral(NDXCOM_CATALOGUE_DIR "/GLOSSARY.md")),
             qPrintable(m_glossary.errorString()));
    QVERIFY2(!m_glossary.terms().isEmpty(), "the glossary lists no term");
    for (const char *language : kLanguages) {
        const QString code = QLatin1String(language);
        TsCatalogue &catalogue = m_catalogues[code];
        QVERIFY2(catalogue.load(QStringLiteral(NDXCOM_CATALOGUE_DIR "/ndxcom_%1.ts").arg(code)),
                 qPrintable(catalogue.errorString()));
    }
}

void tst_Terminology::termsComplete_data()
{
    QTest::addColumn<int>("index");
    const QList<GlossaryTerm> terms = m_glossary.terms();
    for (int i = 0; i < terms.size(); ++i)
        QTest::addRow("line %d %s", terms.at(i).line,
                      qPrintable(terms.at(i).italian.value(0, QStringLiteral("?"))))
            << i;
}

void tst_Terminology::termsComplete()
{
    QFETCH(int, index);
    const GlossaryTerm term = m_glossary.terms().at(index);
    QVERIFY2(!term.italian.isEmpty(), "no Italian form");
    for (const char *language : kLanguages)
        QVERIFY2(!term.forms.value(QLatin1String(language)).isEmpty(),
                 qPrintable(QStringLiteral("no %1 form").arg(QLatin1String(language))));
    // One Italian form in two rows would ask for two renderings at once.
    for (const GlossaryTerm &other : m_glossary.terms()) {
        if (other.line == term.line)
            continue;
        for (const QString &form : term.italian)
            QVERIFY2(!other.italian.contains(form, Qt::CaseInsensitive),
                     qPrintable(QStringLiteral("\"%1\" is also in the row of line %2")
                                    .arg(form)
                                    .arg(other.line)));
    }
    // A number in the Italian form is carried into every rendering.
    if (isNumbered(term.italian)) {
        for (const char *language : kLanguages) {
            for (const QString &form : term.forms.value(QLatin1String(language)))
                QVERIFY2(form.contains(QLatin1Char('#')),
                         qPrintable(QStringLiteral("the %1 form \"%2\" has no \"#\" for the "
                                                   "number of the Italian form")
                                        .arg(QLatin1String(language), form)));
        }
    }
}

void tst_Terminology::exceptionsNameRealTexts_data()
{
    QTest::addColumn<int>("index");
    const QList<GlossaryException> exceptions = m_glossary.exceptions();
    for (int i = 0; i < exceptions.size(); ++i)
        QTest::addRow("line %d %s %s", exceptions.at(i).line, qPrintable(exceptions.at(i).language),
                      qPrintable(exceptions.at(i).term))
            << i;
}

// An exception that matches nothing (a typo, a text since changed) would
// silently exempt a text written later.
void tst_Terminology::exceptionsNameRealTexts()
{
    // QtTest runs a function whose table has no row once, without data.
    if (!QTest::currentDataTag())
        QSKIP("the glossary lists no exception");
    QFETCH(int, index);
    const GlossaryException e = m_glossary.exceptions().at(index);
    QVERIFY2(m_catalogues.contains(e.language),
             qPrintable(QStringLiteral("unknown language \"%1\"").arg(e.language)));
    const GlossaryTerm *term = m_glossary.term(e.term);
    QVERIFY2(
        term,
        qPrintable(QStringLiteral("\"%1\" is no Italian form of the terms table").arg(e.term)));
    QVERIFY2(!e.sourcePrefix.isEmpty(), "no source text");
    int matches = 0;
    const TsCatalogue &catalogue = m_catalogues.value(e.language);
    for (const QString &context : catalogue.contexts()) {
        for (const QString &source : catalogue.sources(context)) {
            if (source.startsWith(e.sourcePrefix) && occursIn(source, *term))
                ++matches;
        }
    }
    QVERIFY2(matches > 0,
             qPrintable(QStringLiteral("no source text begins with \"%1\" and "
                                       "holds the term")
                            .arg(e.sourcePrefix)));
}

void tst_Terminology::glossaryTermsRendered_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QStringList>("forms");
    QTest::addColumn<QString>("exemption");
    const QList<GlossaryTerm> terms = m_glossary.terms();
    const QList<GlossaryException> exceptions = m_glossary.exceptions();
    for (const char *language : kLanguages) {
        const QString code = QLatin1String(language);
        const TsCatalogue &catalogue = m_catalogues.value(code);
        for (const QString &context : catalogue.contexts()) {
            const QList<TsMessage> messages = catalogue.messages(context);
            for (int m = 0; m < messages.size(); ++m) {
                const TsMessage &message = messages.at(m);
                for (const GlossaryTerm &term : terms) {
                    if (!occursIn(message.source, term))
                        continue;
                    QString exemption;
                    for (const GlossaryException &e : exceptions) {
                        const GlossaryTerm *exempted = m_glossary.term(e.term);
                        if (e.language == code && exempted && exempted->line == term.line
                            && !e.sourcePrefix.isEmpty()
                            && message.source.startsWith(e.sourcePrefix))
                            exemption = e.why.isEmpty()
                                ? QStringLiteral("exception of line %1").arg(e.line)
                                : e.why;
                    }
                    if (!isNumbered(term.italian)) {
                        QTest::addRow("%s/%s/%s#%d %s", language, qPrintable(term.italian.first()),
                                      qPrintable(context), m + 1, qPrintable(head(message.source)))
                            << code << message.source << message.translation
                            << term.forms.value(code) << exemption;
                        continue;
                    }
                    // One row for each number the source gives the term.
                    for (const QString &number : numbersIn(message.source, term.italian)) {
                        QTest::addRow(
                            "%s/%s/%s#%d %s", language,
                            qPrintable(withNumber({term.italian.first()}, number).first()),
                            qPrintable(context), m + 1, qPrintable(head(message.source)))
                            << code << message.source << message.translation
                            << withNumber(term.forms.value(code), number) << exemption;
                    }
                }
            }
        }
    }
}

void tst_Terminology::glossaryTermsRendered()
{
    if (!QTest::currentDataTag())
        QSKIP("no source text holds a term of the glossary");
    QFETCH(QString, language);
    QFETCH(QString, translation);
    QFETCH(QStringList, forms);
    QFETCH(QString, exemption);
    if (!exemption.isEmpty())
        QSKIP(qPrintable(QStringLiteral("exempt: %1").arg(exemption)));
    if (translation.isEmpty())
        QSKIP("no translation yet (see tst_cataloguecontents)");
    bool found = false;
    for (const QString &form : forms) {
        found = rendersWith(language, translation, form);
        if (found)
            break;
    }
    QVERIFY2(found,
             qPrintable(QStringLiteral("the translation \"%1\" uses none of: %2")
                            .arg(translation, forms.join(QLatin1String(" / ")))));
}

void tst_Terminology::avoidancesNameRealTexts_data()
{
    QTest::addColumn<int>("index");
    const QList<GlossaryAvoidance> avoidances = m_glossary.avoidances();
    for (int i = 0; i < avoidances.size(); ++i)
        QTest::addRow("line %d %s %s", avoidances.at(i).line, qPrintable(avoidances.at(i).language),
                      qPrintable(avoidances.at(i).italian.value(0, QStringLiteral("?"))))
            << i;
}

// A rendering to avoid that names no text of the catalogues would guard
// nothing: a typo in the Italian form or the language.
void tst_Terminology::avoidancesNameRealTexts()
{
    if (!QTest::currentDataTag())
        QSKIP("the glossary lists no rendering to avoid");
    QFETCH(int, index);
    const GlossaryAvoidance a = m_glossary.avoidances().at(index);
    QVERIFY2(m_catalogues.contains(a.language),
             qPrintable(QStringLiteral("unknown language \"%1\"").arg(a.language)));
    QVERIFY2(!a.italian.isEmpty(), "no Italian form");
    QVERIFY2(!a.forms.isEmpty(), "no rendering to avoid");
    int matches = 0;
    const TsCatalogue &catalogue = m_catalogues.value(a.language);
    for (const QString &context : catalogue.contexts()) {
        for (const QString &source : catalogue.sources(context)) {
            if (occursIn(source, a.italian))
                ++matches;
        }
    }
    QVERIFY2(matches > 0,
             qPrintable(QStringLiteral("no source text holds \"%1\"")
                            .arg(a.italian.join(QLatin1String(" / ")))));
}

void tst_Terminology::renderingsAvoided_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QStringList>("forms");
    QTest::addColumn<QString>("why");
    for (const GlossaryAvoidance &a : m_glossary.avoidances()) {
        if (!m_catalogues.contains(a.language))
            continue; // avoidancesNameRealTexts() says so
        const TsCatalogue &catalogue = m_catalogues.value(a.language);
        for (const QString &context : catalogue.contexts()) {
            const QList<TsMessage> messages = catalogue.messages(context);
            for (int m = 0; m < messages.size(); ++m) {
                const TsMessage &message = messages.at(m);
                if (!occursIn(message.source, a.italian))
                    continue;
                QTest::addRow("%s/%s/%s#%d %s", qPrintable(a.language),
                              qPrintable(a.italian.first()), qPrintable(context), m + 1,
                              qPrintable(head(message.source)))
                    << a.language << message.translation << a.forms
                    << (a.why.isEmpty() ? QStringLiteral("line %1 of the glossary").arg(a.line)
                                        : a.why);
            }
        }
    }
}

// What a knitter would misread: the glossary names the renderings that were
// once used and are wrong, so that they do not come back.
void tst_Terminology::renderingsAvoided()
{
    if (!QTest::currentDataTag())
        QSKIP("the glossary lists no rendering to avoid");
    QFETCH(QString, language);
    QFETCH(QString, translation);
    QFETCH(QStringList, forms);
    QFETCH(QString, why);
    for (const QString &form : forms) {
        QVERIFY2(!rendersWith(language, translation, form),
                 qPrintable(QStringLiteral("the translation \"%1\" uses \"%2\": %3")
                                .arg(translation, form, why)));
    }
}

// The matching itself, on texts of the catalogues' kind.
void tst_Terminology::wordMatching_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("form");
    QTest::addColumn<bool>("word");
    QTest::addColumn<bool>("anywhere");
    QTest::newRow("whole word") << QStringLiteral("Piano cilindro") << QStringLiteral("piano")
                                << true << true;
    QTest::newRow("part of a word")
        << QStringLiteral("Pianoforte") << QStringLiteral("piano") << false << true;
    QTest::newRow("after an apostrophe") << QStringLiteral("Vuoi salvare l'acquisizione ?")
                                         << QStringLiteral("Acquisizione") << true << true;
    QTest::newRow("accented end") << QStringLiteral("Velocità massima") << QStringLiteral("velocit")
                                  << false << true;
    QTest::newRow("accented word")
        << QStringLiteral("la Velocità") << QStringLiteral("velocità") << true << true;
    QTest::newRow("line break for a blank")
        << QStringLiteral("ADATTA\nAcquisizione SCS") << QStringLiteral("adatta acquisizione")
        << true << true;
    QTest::newRow("chinese") << QStringLiteral("\u4fdd\u5b58\u9879\u76ee")
                             << QStringLiteral("\u9879\u76ee") << false << true;
    QTest::newRow("number") << QStringLiteral("Una zona a 4 cadute") << QStringLiteral("# cadute")
                            << true << true;
    QTest::newRow("number of two digits")
        << QStringLiteral("zona 12 cadute") << QStringLiteral("# cadute") << true << true;
    QTest::newRow("no number") << QStringLiteral("su tutte le cadute") << QStringLiteral("# cadute")
                               << false << false;
    QTest::newRow("number with a hyphen")
        << QStringLiteral("an 8-feed zone") << QStringLiteral("#-feed") << true << true;
    QTest::newRow("number in chinese") << QStringLiteral("\u5f9e 8 \u8def\u5207\u63db")
                                       << QStringLiteral("# \u8def") << false << true;
    QTest::newRow("absent") << QStringLiteral("Salva con nome") << QStringLiteral("progetto")
                            << false << false;
}

void tst_Terminology::wordMatching()
{
    QFETCH(QString, text);
    QFETCH(QString, form);
    QFETCH(bool, word);
    QFETCH(bool, anywhere);
    QCOMPARE(Glossary::containsWord(text, form), word);
    QCOMPARE(Glossary::containsText(text, form), anywhere);
}

// The numbers a source text gives a form with "#".
void tst_Terminology::numbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("form");
    QTest::addColumn<QStringList>("numbers");
    QTest::newRow("two") << QStringLiteral("Nel passaggio zona 8 cadute a zona 4 cadute")
                         << QStringLiteral("# cadute")
                         << QStringList {QStringLiteral("8"), QStringLiteral("4")};
    QTest::newRow("a number that counts something else")
        << QStringLiteral("da 8 a 4 cadute") << QStringLiteral("# cadute")
        << QStringList {QStringLiteral("4")};
    QTest::newRow("no #") << QStringLiteral("zona 8 cadute") << QStringLiteral("cadute")
                          << QStringList();
}

void tst_Terminology::numbers()
{
    QFETCH(QString, text);
    QFETCH(QString, form);
    QFETCH(QStringList, numbers);
    QCOMPARE(Glossary::numbers(text, form), numbers);
}

NDXCOM_TEST_MAIN(tst_Terminology)
#include "tst_terminology.moc"

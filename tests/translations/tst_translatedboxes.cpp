#include <QNodrixMessageBox>

#include "dialogdriver.h"
#include "ndxcomtest.h"

#include <QtCore/QTranslator>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace NdxComTest;

// The library's texts go through the installed catalogue; the fixed window
// title "Nodrix" of the presentations never does.
class tst_TranslatedBoxes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void presentationButtons();
    void advisorText();
    void ruleText();
    void errorReportTitleIsTranslated();
    void untranslatedTextsStayItalian();
    void fixedWidthButtonsGrowForLongTranslations();

private:
    QTranslator m_translator;
};

void tst_TranslatedBoxes::initTestCase()
{
    QVERIFY(m_translator.load(QStringLiteral(NDXCOM_TEST_QM)));
    QVERIFY(QCoreApplication::installTranslator(&m_translator));
}

void tst_TranslatedBoxes::cleanupTestCase()
{
    QCoreApplication::removeTranslator(&m_translator);
}

void tst_TranslatedBoxes::presentationButtons()
{
    QNodrixMessageBox box(QStringLiteral("testo"));
    QMessageBox::StandardButton result = QMessageBox::NoButton;
    const BoxRecord r
        = driveOne([&] { result = box.execQuestion(); }, Action::click(QStringLiteral("Yes")));
    QVERIFY(!r.actionFailed);
    QCOMPARE(result, QMessageBox::Yes);
    QCOMPARE(r.title, QStringLiteral("Nodrix"));
    QCOMPARE(r.buttonsByRole(),
             (QList<QPair<QString, QMessageBox::ButtonRole>> {
                 {QStringLiteral("Yes"), QMessageBox::AcceptRole},
                 {QStringLiteral("No way"), QMessageBox::RejectRole}}));
    QCOMPARE(r.defaultButton, QStringLiteral("No way"));
}

void tst_TranslatedBoxes::advisorText()
{
    int result = 0;
    const BoxRecord r = driveOne(
        [&] {
            result
                = QNodrixMessageBox::execScsAdvisor(QNodrixMessageBox::enScsAdvisor(8), QString());
        },
        Action::click(QStringLiteral("Yes")));
    QCOMPARE(r.text, QStringLiteral("Warning:\nDo you want to save your changes?"));
    QCOMPARE(r.title, QStringLiteral("Nodrix"));
    QCOMPARE(result, int(QMessageBox::Yes));
}

void tst_TranslatedBoxes::ruleText()
{
    QStringList rule {QStringLiteral("57"), QStringLiteral("6")};
    const BoxRecord r = driveOne([&] { QNodrixMessageBox::execModuleRulesAdvisor(rule); },
                                 Action::click(QStringLiteral("Close")));
    QVERIFY(!r.actionFailed);
    QCOMPARE(r.text,
             QStringLiteral(
                 "Warning:\nA 4-feed zone starts either at the first step or after 6 steps!"));
    QCOMPARE(r.title, QStringLiteral("Nodrix"));
    QCOMPARE(r.buttonTexts().size(), 2);
    QVERIFY(r.buttonTexts().contains(QStringLiteral("Details")));
}

void tst_TranslatedBoxes::errorReportTitleIsTranslated()
{
    // The file error reports build their title through the catalogue, unlike
    // the presentations.
    const BoxRecord r = driveOne(
        [&] {
            QNodrixMessageBox::execFileOpenError(QStringLiteral("a.ndx"), QStringLiteral("denied"));
        },
        Action::click(QStringLiteral("OK")));
    QCOMPARE(r.title, QStringLiteral("Nodrix (translated)"));
    QCOMPARE(r.text, QStringLiteral("Cannot open the file a.ndx:\ndenied"));
}

void tst_TranslatedBoxes::untranslatedTextsStayItalian()
{
    const BoxRecord r = driveOne(
        [&] { QNodrixMessageBox::execScsAdvisor(QNodrixMessageBox::enScsAdvisor(7), QString()); },
        Action::click(QStringLiteral("No way")));
    QCOMPARE(r.text,
             QStringLiteral(
                 "Attenzione:\nVuoi salvare anche l'acquisizione SCS presente nel progetto ?"));
}

// The 140 pixels of the resize question hold its Italian labels; a
// translation that needs more widens its button, one that fits keeps them.
void tst_TranslatedBoxes::fixedWidthButtonsGrowForLongTranslations()
{
    int result = 0;
    const QString adapt = QStringLiteral("ADAPT\nthe SCS acquisition data to the new size");
    const BoxRecord r = driveOne(
        [&] {
            result = QNodrixMessageBox::execScsAdvisor(QNodrixMessageBox::eScs_Resize, QString());
        },
        Action::click(adapt));
    QVERIFY(!r.actionFailed);
    QCOMPARE(result, int(QMessageBox::Apply));
    const ButtonRecord *wide = r.button(adapt);
    const ButtonRecord *narrow = r.button(QStringLiteral("CANCEL\nChange"));
    QVERIFY(wide && narrow);
    QVERIFY2(wide->sizeHintWidth > 140, "the long label is not long enough to test anything");
    QCOMPARE(wide->width, wide->sizeHintWidth);
    QCOMPARE(wide->minimumWidth, wide->maximumWidth);
    QVERIFY(narrow->sizeHintWidth <= 140);
    QCOMPARE(narrow->width, 140);
    QCOMPARE(narrow->minimumWidth, 140);
    QCOMPARE(narrow->maximumWidth, 140);
}

NDXCOM_TEST_MAIN(tst_TranslatedBoxes)
#include "tst_translatedboxes.moc"

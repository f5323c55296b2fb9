#ifndef RULESTEST_H
#define RULESTEST_H

// What the programs of execModuleRulesAdvisor share: the columns of a row
// (the list given, how the box is ended, the text it must show) and the
// check of the box a row shows.

#include <QNodrixMessageBox>

#include "dialogdriver.h"

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QStringList>
#include <QtTest/QtTest>
#include <QtWidgets/QMessageBox>

Q_DECLARE_METATYPE(NdxComTest::Action)

namespace RulesTest {

using Buttons = QList<QPair<QString, QMessageBox::ButtonRole>>;

inline NdxComTest::Action click(const char *text)
{
    return NdxComTest::Action::click(QString::fromUtf8(text));
}

inline const Buttons rulesButtons = {{QStringLiteral("Dettagli"), QMessageBox::NoRole},
                                     {QStringLiteral("Chiudi"), QMessageBox::NoRole}};

inline void addColumns()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<NdxComTest::Action>("action");
    QTest::addColumn<QString>("text");
}

// Shows the box of the current row, ends it as the row says, and checks it:
// the row's text, and what every rules box has in common.
inline void checkRule()
{
    using namespace NdxComTest;
    QFETCH(QStringList, entries);
    QFETCH(NdxComTest::Action, action);
    QFETCH(QString, text);

    QStringList record = entries;
    DialogDriver driver;
    const QList<BoxRecord> records
        = driver.run([&] { QNodrixMessageBox::execModuleRulesAdvisor(record); }, {action});

    QCOMPARE(records.size(), 1);
    QCOMPARE(driver.unexpected(), 0);
    const BoxRecord &r = records.first();
    QVERIFY(!r.actionFailed);
    QCOMPARE(r.text, text);
    QCOMPARE(record, entries); // the list is not changed

    QCOMPARE(r.title, QStringLiteral("Nodrix"));
    QCOMPARE(r.icon, QMessageBox::Information);
    QCOMPARE(r.buttonsByRole(), rulesButtons);
    QCOMPARE(r.defaultButton, QString());
    QVERIFY(r.width >= 500);
    QVERIFY(r.minimumWidth >= 500);
    QVERIFY(!r.hasParent);
    QVERIFY(r.flags & Qt::Dialog);
    QVERIFY(r.flags & Qt::MSWindowsFixedSizeDialogHint);
    QVERIFY(!r.hasOverrideCursor);
    QVERIFY(driver.cursorRestored());
}

} // namespace RulesTest

#endif // RULESTEST_H

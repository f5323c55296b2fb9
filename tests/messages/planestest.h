#ifndef PLANESTEST_H
#define PLANESTEST_H

// What the programs of the plane editors' advisors share: the families and
// the boxes they show, a call of any advisor, the columns of a row and the
// check of the box a row shows.

#include <QNodrixMessageBox>

#include "dialogdriver.h"

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QStringList>
#include <QtTest/QtTest>
#include <QtWidgets/QMessageBox>

#include <algorithm>
#include <climits>

namespace PlanesTest {

using NdxComTest::Action;
using Buttons = QList<QPair<QString, QMessageBox::ButtonRole>>;

enum class Family { FreeCmd, Scheme, Skel, Elab, CommandPlane, BodyPlane };

// The boxes the advisors of the plane editors show.
enum class Box {
    None, // nothing is shown
    ContinueCancel, // free command plane 0
    OkCancel, // free command plane 1
    SaveExitCancel, // free command plane 2
    YesNo, // the free command plane's "Si"/"No" questions
    WarningClose, // execWarningClose
    WarningYesNo // execWarning
};

struct Layout
{
    QMessageBox::Icon icon;
    Buttons buttons; // in the order of adding
    QString defaultButton;
};

inline Layout layoutOf(Box box)
{
    const QString si = QStringLiteral("Si"), no = QStringLiteral("No");
    const QString annulla = QStringLiteral("Annulla");
    switch (box) {
    case Box::None:
        break;
    case Box::ContinueCancel:
        return {QMessageBox::Information,
                {{QStringLiteral("Continua"), QMessageBox::AcceptRole},
                 {annulla, QMessageBox::RejectRole}},
                annulla};
    case Box::OkCancel:
        return {QMessageBox::Information,
                {{QStringLiteral("OK"), QMessageBox::YesRole}, {annulla, QMessageBox::RejectRole}},
                QStringLiteral("OK")};
    case Box::SaveExitCancel:
        return {QMessageBox::Information,
                {{QStringLiteral("Salva"), QMessageBox::AcceptRole},
                 {QStringLiteral("Esci"), QMessageBox::NoRole},
                 {annulla, QMessageBox::RejectRole}},
                QStringLiteral("Salva")};
    case Box::YesNo:
        return {QMessageBox::Information,
                {{si, QMessageBox::AcceptRole}, {no, QMessageBox::RejectRole}},
                no};
    case Box::WarningClose:
        return {QMessageBox::Warning, {{QStringLiteral("Chiudi"), QMessageBox::AcceptRole}}, {}};
    case Box::WarningYesNo:
        return {QMessageBox::Warning,
                {{si, QMessageBox::AcceptRole}, {no, QMessageBox::RejectRole}},
                no};
    }
    return {QMessageBox::NoIcon, {}, {}};
}

inline Buttons sortedByRole(Buttons b)
{
    std::stable_sort(b.begin(), b.end(),
                     [](const auto &x, const auto &y) { return x.second < y.second; });
    return b;
}

// The advisors without a result.
constexpr int kNoResult = INT_MIN;

// Calls one advisor; the body-plane advisor takes its arguments as numbers.
inline int call(Family family, int value, const QStringList &args)
{
    using M = QNodrixMessageBox;
    switch (family) {
    case Family::FreeCmd:
        return M::execFreeCmdModeAdvisor(M::enFreeCmdModeAdvisor(value), args.value(0),
                                         args.value(1));
    case Family::Scheme:
        M::execProjectSchemeAdvisor(M::enSchemeAdvisor(value), args.value(0));
        return kNoResult;
    case Family::Skel:
        M::execProjectSkelAdvisor(M::enSkelAdvisor(value), args.value(0));
        return kNoResult;
    case Family::Elab:
        return int(
            M::execProjectElabAdvisor(M::enProjElabAdvisor(value), args.value(0), args.value(1)));
    case Family::CommandPlane:
        M::execCommandPlaneAdvisor(M::enCommandPlaneAdvisor(value), args.value(0));
        return kNoResult;
    case Family::BodyPlane:
        return M::execBodyPlaneAdvisor(M::enBodyPlaneAdvisor(value), args.value(0).toInt(),
                                       args.value(1).toInt(), args.value(2).toInt());
    }
    return kNoResult;
}

inline Action click(const char *text)
{
    return Action::click(QString::fromUtf8(text));
}

} // namespace PlanesTest

Q_DECLARE_METATYPE(NdxComTest::Action)
Q_DECLARE_METATYPE(PlanesTest::Family)
Q_DECLARE_METATYPE(PlanesTest::Box)

namespace PlanesTest {

// The columns of an advisor's row: the family and the value called with
// their arguments, how the box is ended, the box and text it must show, and
// the result (kNoResult for an advisor without one).
inline void addColumns()
{
    QTest::addColumn<Family>("family");
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<NdxComTest::Action>("action");
    QTest::addColumn<Box>("box");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");
}

// Calls the advisor of the current row, ends its box as the row says, and
// checks the box and the result.
inline void checkAdvisor()
{
    using namespace NdxComTest;
    QFETCH(Family, family);
    QFETCH(int, value);
    QFETCH(QStringList, args);
    QFETCH(NdxComTest::Action, action);
    QFETCH(Box, box);
    QFETCH(QString, text);
    QFETCH(int, result);

    DialogDriver driver;
    int got = 0;
    const QList<BoxRecord> records = driver.run([&] { got = call(family, value, args); }, {action});

    QCOMPARE(records.size(), 1);
    QCOMPARE(driver.unexpected(), 0);
    const BoxRecord &r = records.first();
    QVERIFY(!r.actionFailed);
    if (result != kNoResult)
        QCOMPARE(got, result);

    const Layout expected = layoutOf(box);
    QCOMPARE(r.text, text);
    QCOMPARE(r.title, QStringLiteral("Nodrix"));
    QCOMPARE(r.icon, expected.icon);
    QCOMPARE(r.buttonsByRole(), sortedByRole(expected.buttons));
    QCOMPARE(r.defaultButton, expected.defaultButton);
    QVERIFY(!r.hasParent);
    QVERIFY(r.flags & Qt::Dialog);
    QVERIFY(r.flags & Qt::MSWindowsFixedSizeDialogHint);
    for (const ButtonRecord &b : r.buttons)
        QVERIFY(b.maximumWidth > b.minimumWidth); // no fixed widths here
    QVERIFY(!r.hasOverrideCursor);
    QVERIFY(driver.cursorRestored());
}

} // namespace PlanesTest

#endif // PLANESTEST_H

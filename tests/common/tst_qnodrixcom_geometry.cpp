#include <QNodrixCom>

#include "ndxcomtest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <climits>

// Expected values below were computed independently with arbitrary-precision
// integers reduced to 32-bit two's complement, truncating division and loops
// that fold one needle count (or one turn) at a time.

namespace Fn {
enum Conversion { needleFromDegree, needleFromDegree10, degreeFromNeedle, degree10FromNeedle };
}
Q_DECLARE_METATYPE(Fn::Conversion)

class tst_QNodrixCom_Geometry : public QObject
{
    Q_OBJECT

private slots:
    void conversions_data();
    void conversions();
    void untruncatedAngleGivesOnlyZeroOrOne();
    void roundTrip_data();
    void roundTrip();
    void zeroNeedles();
    void normaNeedleLine_data();
    void normaNeedleLine();
    void normaNeedleLineOfs_data();
    void normaNeedleLineOfs();
    void normaDegree10Step_data();
    void normaDegree10Step();
    void foldsAreConstantTime();
    void normaValueInRange_data();
    void normaValueInRange();
    void normaValueInRangePos_data();
    void normaValueInRangePos();
};

static int convert(Fn::Conversion f, int a, int n, bool t)
{
    switch (f) {
    case Fn::needleFromDegree:
        return QNodrixCom::needleFromDegree(a, n, t);
    case Fn::needleFromDegree10:
        return QNodrixCom::needleFromDegree10(a, n, t);
    case Fn::degreeFromNeedle:
        return QNodrixCom::degreeFromNeedle(a, n, t);
    case Fn::degree10FromNeedle:
        return QNodrixCom::degree10FromNeedle(a, n, t);
    }
    return 0;
}

void tst_QNodrixCom_Geometry::conversions_data()
{
    QTest::addColumn<Fn::Conversion>("function");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("needles");
    QTest::addColumn<bool>("truncate");
    QTest::addColumn<int>("expected");

    QTest::newRow("needleFromDegree(1,1000,true)")
        << Fn::needleFromDegree << 1 << 1000 << true << 2;
    QTest::newRow("needleFromDegree(1,1000,false)")
        << Fn::needleFromDegree << 1 << 1000 << false << 1;
    QTest::newRow("needleFromDegree(90,1680,true)")
        << Fn::needleFromDegree << 90 << 1680 << true << 420;
    QTest::newRow("needleFromDegree(90,1680,false)")
        << Fn::needleFromDegree << 90 << 1680 << false << 1;
    QTest::newRow("needleFromDegree(360,1000,true)")
        << Fn::needleFromDegree << 360 << 1000 << true << 1000;
    QTest::newRow("needleFromDegree(360,1000,false)")
        << Fn::needleFromDegree << 360 << 1000 << false << 1;
    QTest::newRow("needleFromDegree(-36,1000,true)")
        << Fn::needleFromDegree << -36 << 1000 << true << -100;
    QTest::newRow("needleFromDegree(-36,1000,false)")
        << Fn::needleFromDegree << -36 << 1000 << false << 0;
    QTest::newRow("needleFromDegree(0,1000,true)")
        << Fn::needleFromDegree << 0 << 1000 << true << 0;
    QTest::newRow("needleFromDegree(0,1000,false)")
        << Fn::needleFromDegree << 0 << 1000 << false << 0;
    QTest::newRow("needleFromDegree(-1,1000,true)")
        << Fn::needleFromDegree << -1 << 1000 << true << -2;
    QTest::newRow("needleFromDegree(-1,1000,false)")
        << Fn::needleFromDegree << -1 << 1000 << false << 0;
    QTest::newRow("needleFromDegree(214748,1000,true)")
        << Fn::needleFromDegree << 214748 << 1000 << true << 596522;
    QTest::newRow("needleFromDegree(214748,1000,false)")
        << Fn::needleFromDegree << 214748 << 1000 << false << 1;
    QTest::newRow("needleFromDegree(2147483647,1,true)")
        << Fn::needleFromDegree << 2147483647 << 1 << true << 0;
    QTest::newRow("needleFromDegree(2147483647,1,false)")
        << Fn::needleFromDegree << 2147483647 << 1 << false << 0;
    QTest::newRow("needleFromDegree(-2147483648,1,true)")
        << Fn::needleFromDegree << INT_MIN << 1 << true << 0;
    QTest::newRow("needleFromDegree(-2147483648,1,false)")
        << Fn::needleFromDegree << INT_MIN << 1 << false << 0;
    QTest::newRow("needleFromDegree(100000,1000,true)")
        << Fn::needleFromDegree << 100000 << 1000 << true << 277777;
    QTest::newRow("needleFromDegree(100000,1000,false)")
        << Fn::needleFromDegree << 100000 << 1000 << false << 1;
    QTest::newRow("needleFromDegree(360,2147483647,true)")
        << Fn::needleFromDegree << 360 << 2147483647 << true << -1;
    QTest::newRow("needleFromDegree(360,2147483647,false)")
        << Fn::needleFromDegree << 360 << 2147483647 << false << 0;
    QTest::newRow("needleFromDegree(7,-1680,true)")
        << Fn::needleFromDegree << 7 << -1680 << true << -32;
    QTest::newRow("needleFromDegree(7,-1680,false)")
        << Fn::needleFromDegree << 7 << -1680 << false << 0;
    QTest::newRow("needleFromDegree10(3599,1000,true)")
        << Fn::needleFromDegree10 << 3599 << 1000 << true << 999;
    QTest::newRow("needleFromDegree10(3599,1000,false)")
        << Fn::needleFromDegree10 << 3599 << 1000 << false << 1;
    QTest::newRow("needleFromDegree10(900,1680,true)")
        << Fn::needleFromDegree10 << 900 << 1680 << true << 420;
    QTest::newRow("needleFromDegree10(900,1680,false)")
        << Fn::needleFromDegree10 << 900 << 1680 << false << 1;
    QTest::newRow("needleFromDegree10(-900,1680,true)")
        << Fn::needleFromDegree10 << -900 << 1680 << true << -420;
    QTest::newRow("needleFromDegree10(-900,1680,false)")
        << Fn::needleFromDegree10 << -900 << 1680 << false << 0;
    QTest::newRow("needleFromDegree10(1,1000,true)")
        << Fn::needleFromDegree10 << 1 << 1000 << true << 0;
    QTest::newRow("needleFromDegree10(1,1000,false)")
        << Fn::needleFromDegree10 << 1 << 1000 << false << 1;
    QTest::newRow("needleFromDegree10(3600,1000,true)")
        << Fn::needleFromDegree10 << 3600 << 1000 << true << 1000;
    QTest::newRow("needleFromDegree10(3600,1000,false)")
        << Fn::needleFromDegree10 << 3600 << 1000 << false << 1;
    QTest::newRow("needleFromDegree10(2147483,1000,true)")
        << Fn::needleFromDegree10 << 2147483 << 1000 << true << 596523;
    QTest::newRow("needleFromDegree10(2147483,1000,false)")
        << Fn::needleFromDegree10 << 2147483 << 1000 << false << 1;
    QTest::newRow("needleFromDegree10(3000000,1000,true)")
        << Fn::needleFromDegree10 << 3000000 << 1000 << true << -359713;
    QTest::newRow("needleFromDegree10(3000000,1000,false)")
        << Fn::needleFromDegree10 << 3000000 << 1000 << false << 0;
    QTest::newRow("needleFromDegree10(-3000000,1000,true)")
        << Fn::needleFromDegree10 << -3000000 << 1000 << true << 359713;
    QTest::newRow("needleFromDegree10(-3000000,1000,false)")
        << Fn::needleFromDegree10 << -3000000 << 1000 << false << 1;
    QTest::newRow("needleFromDegree10(2147483647,2,true)")
        << Fn::needleFromDegree10 << 2147483647 << 2 << true << 0;
    QTest::newRow("needleFromDegree10(2147483647,2,false)")
        << Fn::needleFromDegree10 << 2147483647 << 2 << false << 0;
    QTest::newRow("needleFromDegree10(-2147483648,-1,true)")
        << Fn::needleFromDegree10 << INT_MIN << -1 << true << -596523;
    QTest::newRow("needleFromDegree10(-2147483648,-1,false)")
        << Fn::needleFromDegree10 << INT_MIN << -1 << false << 0;
    QTest::newRow("needleFromDegree10(3600,2000000,true)")
        << Fn::needleFromDegree10 << 3600 << 2000000 << true << -386092;
    QTest::newRow("needleFromDegree10(3600,2000000,false)")
        << Fn::needleFromDegree10 << 3600 << 2000000 << false << 0;
    QTest::newRow("degreeFromNeedle(999,1000,true)")
        << Fn::degreeFromNeedle << 999 << 1000 << true << 359;
    QTest::newRow("degreeFromNeedle(999,1000,false)")
        << Fn::degreeFromNeedle << 999 << 1000 << false << 360;
    QTest::newRow("degreeFromNeedle(1,1000,true)")
        << Fn::degreeFromNeedle << 1 << 1000 << true << 0;
    QTest::newRow("degreeFromNeedle(1,1000,false)")
        << Fn::degreeFromNeedle << 1 << 1000 << false << 1;
    QTest::newRow("degreeFromNeedle(3,7,true)") << Fn::degreeFromNeedle << 3 << 7 << true << 154;
    QTest::newRow("degreeFromNeedle(3,7,false)") << Fn::degreeFromNeedle << 3 << 7 << false << 155;
    QTest::newRow("degreeFromNeedle(1,100,true)") << Fn::degreeFromNeedle << 1 << 100 << true << 3;
    QTest::newRow("degreeFromNeedle(1,100,false)")
        << Fn::degreeFromNeedle << 1 << 100 << false << 3;
    QTest::newRow("degreeFromNeedle(-7,1680,true)")
        << Fn::degreeFromNeedle << -7 << 1680 << true << -1;
    QTest::newRow("degreeFromNeedle(-7,1680,false)")
        << Fn::degreeFromNeedle << -7 << 1680 << false << -1;
    QTest::newRow("degreeFromNeedle(0,1000,true)")
        << Fn::degreeFromNeedle << 0 << 1000 << true << 0;
    QTest::newRow("degreeFromNeedle(0,1000,false)")
        << Fn::degreeFromNeedle << 0 << 1000 << false << 0;
    QTest::newRow("degreeFromNeedle(1000,1000,true)")
        << Fn::degreeFromNeedle << 1000 << 1000 << true << 360;
    QTest::newRow("degreeFromNeedle(1000,1000,false)")
        << Fn::degreeFromNeedle << 1000 << 1000 << false << 360;
    QTest::newRow("degreeFromNeedle(596523,1000,true)")
        << Fn::degreeFromNeedle << 596523 << 1000 << true << 214748;
    QTest::newRow("degreeFromNeedle(596523,1000,false)")
        << Fn::degreeFromNeedle << 596523 << 1000 << false << 214749;
    QTest::newRow("degreeFromNeedle(596524,1000,true)")
        << Fn::degreeFromNeedle << 596524 << 1000 << true << -214748;
    QTest::newRow("degreeFromNeedle(596524,1000,false)")
        << Fn::degreeFromNeedle << 596524 << 1000 << false << -214748;
    QTest::newRow("degreeFromNeedle(2147483647,1,true)")
        << Fn::degreeFromNeedle << 2147483647 << 1 << true << -360;
    QTest::newRow("degreeFromNeedle(2147483647,1,false)")
        << Fn::degreeFromNeedle << 2147483647 << 1 << false << -360;
    QTest::newRow("degreeFromNeedle(-2147483648,1,true)")
        << Fn::degreeFromNeedle << INT_MIN << 1 << true << 0;
    QTest::newRow("degreeFromNeedle(-2147483648,1,false)")
        << Fn::degreeFromNeedle << INT_MIN << 1 << false << 0;
    QTest::newRow("degreeFromNeedle(5,-1,true)")
        << Fn::degreeFromNeedle << 5 << -1 << true << -1800;
    QTest::newRow("degreeFromNeedle(5,-1,false)")
        << Fn::degreeFromNeedle << 5 << -1 << false << -1800;
    QTest::newRow("degreeFromNeedle(-2147483648,-1,true)")
        << Fn::degreeFromNeedle << INT_MIN << -1 << true << 0;
    QTest::newRow("degreeFromNeedle(-2147483648,-1,false)")
        << Fn::degreeFromNeedle << INT_MIN << -1 << false << 0;
    QTest::newRow("degreeFromNeedle(100,214748365,true)")
        << Fn::degreeFromNeedle << 100 << 214748365 << true << 0;
    QTest::newRow("degreeFromNeedle(100,214748365,false)")
        << Fn::degreeFromNeedle << 100 << 214748365 << false << 1;
    QTest::newRow("degreeFromNeedle(1,2147483647,true)")
        << Fn::degreeFromNeedle << 1 << 2147483647 << true << -360;
    QTest::newRow("degreeFromNeedle(1,2147483647,false)")
        << Fn::degreeFromNeedle << 1 << 2147483647 << false << -359;
    QTest::newRow("degree10FromNeedle(1,1000,true)")
        << Fn::degree10FromNeedle << 1 << 1000 << true << 3;
    QTest::newRow("degree10FromNeedle(1,1000,false)")
        << Fn::degree10FromNeedle << 1 << 1000 << false << 3;
    QTest::newRow("degree10FromNeedle(999,1000,true)")
        << Fn::degree10FromNeedle << 999 << 1000 << true << 3596;
    QTest::newRow("degree10FromNeedle(999,1000,false)")
        << Fn::degree10FromNeedle << 999 << 1000 << false << 3596;
    QTest::newRow("degree10FromNeedle(1,7,true)")
        << Fn::degree10FromNeedle << 1 << 7 << true << 514;
    QTest::newRow("degree10FromNeedle(1,7,false)")
        << Fn::degree10FromNeedle << 1 << 7 << false << 515;
    QTest::newRow("degree10FromNeedle(3,7,true)")
        << Fn::degree10FromNeedle << 3 << 7 << true << 1542;
    QTest::newRow("degree10FromNeedle(3,7,false)")
        << Fn::degree10FromNeedle << 3 << 7 << false << 1542;
    QTest::newRow("degree10FromNeedle(0,1000,true)")
        << Fn::degree10FromNeedle << 0 << 1000 << true << 0;
    QTest::newRow("degree10FromNeedle(0,1000,false)")
        << Fn::degree10FromNeedle << 0 << 1000 << false << 0;
    QTest::newRow("degree10FromNeedle(1000,1000,true)")
        << Fn::degree10FromNeedle << 1000 << 1000 << true << 3600;
    QTest::newRow("degree10FromNeedle(1000,1000,false)")
        << Fn::degree10FromNeedle << 1000 << 1000 << false << 3600;
    QTest::newRow("degree10FromNeedle(59652,60000,true)")
        << Fn::degree10FromNeedle << 59652 << 60000 << true << 3579;
    QTest::newRow("degree10FromNeedle(59652,60000,false)")
        << Fn::degree10FromNeedle << 59652 << 60000 << false << 3580;
    QTest::newRow("degree10FromNeedle(59653,60000,true)")
        << Fn::degree10FromNeedle << 59653 << 60000 << true << -3579;
    QTest::newRow("degree10FromNeedle(59653,60000,false)")
        << Fn::degree10FromNeedle << 59653 << 60000 << false << -3579;
    QTest::newRow("degree10FromNeedle(65535,65536,true)")
        << Fn::degree10FromNeedle << 65535 << 65536 << true << -2953;
    QTest::newRow("degree10FromNeedle(65535,65536,false)")
        << Fn::degree10FromNeedle << 65535 << 65536 << false << -2953;
    QTest::newRow("degree10FromNeedle(100000,120000,true)")
        << Fn::degree10FromNeedle << 100000 << 120000 << true << -579;
    QTest::newRow("degree10FromNeedle(100000,120000,false)")
        << Fn::degree10FromNeedle << 100000 << 120000 << false << -579;
    QTest::newRow("degree10FromNeedle(2147483647,1000,true)")
        << Fn::degree10FromNeedle << 2147483647 << 1000 << true << -3;
    QTest::newRow("degree10FromNeedle(2147483647,1000,false)")
        << Fn::degree10FromNeedle << 2147483647 << 1000 << false << -3;
    QTest::newRow("degree10FromNeedle(-2147483648,1000,true)")
        << Fn::degree10FromNeedle << INT_MIN << 1000 << true << 0;
    QTest::newRow("degree10FromNeedle(-2147483648,1000,false)")
        << Fn::degree10FromNeedle << INT_MIN << 1000 << false << 0;
    QTest::newRow("degree10FromNeedle(-59653,60000,true)")
        << Fn::degree10FromNeedle << -59653 << 60000 << true << 3579;
    QTest::newRow("degree10FromNeedle(-59653,60000,false)")
        << Fn::degree10FromNeedle << -59653 << 60000 << false << 3580;
    QTest::newRow("degree10FromNeedle(5,-1,true)")
        << Fn::degree10FromNeedle << 5 << -1 << true << -18000;
    QTest::newRow("degree10FromNeedle(5,-1,false)")
        << Fn::degree10FromNeedle << 5 << -1 << false << -18000;
}

void tst_QNodrixCom_Geometry::conversions()
{
    QFETCH(Fn::Conversion, function);
    QFETCH(int, value);
    QFETCH(int, needles);
    QFETCH(bool, truncate);
    QFETCH(int, expected);
    QCOMPARE(convert(function, value, needles, truncate), expected);
}

void tst_QNodrixCom_Geometry::untruncatedAngleGivesOnlyZeroOrOne()
{
    for (int needles : {1, 7, 100, 1000, 1680, 4096}) {
        for (int angle = -4000; angle <= 4000; angle += 7) {
            const int a = QNodrixCom::needleFromDegree(angle, needles, false);
            const int b = QNodrixCom::needleFromDegree10(angle, needles, false);
            QVERIFY2((a == 0 || a == 1) && (b == 0 || b == 1), qPrintable(QString::number(angle)));
        }
    }
    // Negative angles give negative needles when truncating (toward zero).
    QCOMPARE(QNodrixCom::needleFromDegree(-1, 1000, true), -2);
    QCOMPARE(QNodrixCom::needleFromDegree(-1, 1000, false), 0);
}

void tst_QNodrixCom_Geometry::roundTrip_data()
{
    QTest::addColumn<int>("needles");
    for (int n : {1, 7, 100, 1000, 1680, 3600})
        QTest::newRow(qPrintable(QString::number(n))) << n;
}

void tst_QNodrixCom_Geometry::roundTrip()
{
    QFETCH(int, needles);
    for (bool t : {true, false}) {
        QCOMPARE(QNodrixCom::degreeFromNeedle(0, needles, t), 0);
        QCOMPARE(QNodrixCom::degree10FromNeedle(0, needles, t), 0);
        QCOMPARE(QNodrixCom::needleFromDegree(0, needles, t), 0);
        QCOMPARE(QNodrixCom::needleFromDegree10(0, needles, t), 0);
        QCOMPARE(QNodrixCom::degreeFromNeedle(needles, needles, t), 360);
        QCOMPARE(QNodrixCom::degree10FromNeedle(needles, needles, t), 3600);
    }
    QCOMPARE(QNodrixCom::needleFromDegree(360, needles, true), needles);
    QCOMPARE(QNodrixCom::needleFromDegree10(3600, needles, true), needles);
}

void tst_QNodrixCom_Geometry::zeroNeedles()
{
    // The count is a divisor here: 0 answers 0 instead of dividing by zero.
    for (bool t : {true, false}) {
        QCOMPARE(QNodrixCom::degreeFromNeedle(5, 0, t), 0);
        QCOMPARE(QNodrixCom::degree10FromNeedle(INT_MIN, 0, t), 0);
        QCOMPARE(QNodrixCom::needleFromDegree(90, 0, t), 0);
        QCOMPARE(QNodrixCom::needleFromDegree10(900, 0, t), 0);
        // Ten times INT_MIN wraps to 0: the divisor is 0 again.
        QCOMPARE(QNodrixCom::degreeFromNeedle(5, INT_MIN, t), 0);
        QCOMPARE(QNodrixCom::degree10FromNeedle(5, INT_MIN, t), 0);
        QCOMPARE(QNodrixCom::degreeFromNeedle(INT_MIN, INT_MIN, t), 0);
    }
    // The folds would never end: both references stay as they were.
    for (int needles : {0, -1, -100, INT_MIN}) {
        int needle = 5, line = 3;
        QNodrixCom::normaNeedleLine(needle, line, needles, 1, 10);
        QCOMPARE(needle, 5);
        QCOMPARE(line, 3);
        needle = -5;
        QNodrixCom::normaNeedleLineOfs(needle, line, 7, needles, 1, 0);
        QCOMPARE(needle, -5);
        QCOMPARE(line, 3);
    }
}

void tst_QNodrixCom_Geometry::normaNeedleLine_data()
{
    QTest::addColumn<int>("needle");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("needles");
    QTest::addColumn<int>("lineStep");
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("needleAfter");
    QTest::addColumn<int>("lineAfter");

    QTest::newRow("normaNeedleLine(250,2,100,1,0)") << 250 << 2 << 100 << 1 << 0 << 50 << 4;
    QTest::newRow("normaNeedleLine(-1,2,100,1,0)") << -1 << 2 << 100 << 1 << 0 << 99 << 1;
    QTest::newRow("normaNeedleLine(-201,5,100,2,0)") << -201 << 5 << 100 << 2 << 0 << 99 << -1;
    QTest::newRow("normaNeedleLine(100,0,100,3,0)") << 100 << 0 << 100 << 3 << 0 << 0 << 3;
    QTest::newRow("normaNeedleLine(250,8,100,1,10)") << 250 << 8 << 100 << 1 << 10 << 99 << 9;
    QTest::newRow("normaNeedleLine(-1,0,100,1,10)") << -1 << 0 << 100 << 1 << 10 << 0 << 0;
    QTest::newRow("normaNeedleLine(99,0,100,1,0)") << 99 << 0 << 100 << 1 << 0 << 99 << 0;
    QTest::newRow("normaNeedleLine(0,0,100,1,0)") << 0 << 0 << 100 << 1 << 0 << 0 << 0;
    QTest::newRow("normaNeedleLine(5000000,0,100000,7,0)")
        << 5000000 << 0 << 100000 << 7 << 0 << 0 << 350;
    QTest::newRow("normaNeedleLine(-5000000,3,100000,7,0)")
        << -5000000 << 3 << 100000 << 7 << 0 << 0 << -347;
    QTest::newRow("normaNeedleLine(1000000,2147483600,1000,1,0)")
        << 1000000 << 2147483600 << 1000 << 1 << 0 << 0 << -2147482696;
    QTest::newRow("normaNeedleLine(-1000000,-2147483600,1000,1,0)")
        << -1000000 << -2147483600 << 1000 << 1 << 0 << 0 << 2147482696;
    QTest::newRow("normaNeedleLine(123456,0,1,1,0)") << 123456 << 0 << 1 << 1 << 0 << 0 << 123456;
    QTest::newRow("normaNeedleLine(2147483647,0,1000000,1,5)")
        << 2147483647 << 0 << 1000000 << 1 << 5 << 999999 << 4;
    // Folds that the stepwise loop would take billions of steps for.
    QTest::newRow("INT_MAX on one needle") << INT_MAX << 0 << 1 << 1 << 0 << 0 << INT_MAX;
    QTest::newRow("INT_MAX on one needle, step 2 wraps") << INT_MAX << 0 << 1 << 2 << 0 << 0 << -2;
    QTest::newRow("INT_MIN on one needle") << INT_MIN << 0 << 1 << 1 << 0 << 0 << INT_MIN;
    QTest::newRow("INT_MIN on one needle, step 1 from 1")
        << INT_MIN << 1 << 1 << 1 << 0 << 0 << INT_MIN + 1;
    QTest::newRow("INT_MIN on 3 needles") << INT_MIN << 0 << 3 << 1 << 0 << 1 << -715827883;
    QTest::newRow("INT_MIN clamps to needle 0") << INT_MIN << 0 << 7 << 1 << 5 << 0 << 0;
    QTest::newRow("lines INT_MIN") << 0 << 0 << 10 << 1 << INT_MIN << 9 << INT_MAX;
}

void tst_QNodrixCom_Geometry::normaNeedleLine()
{
    QFETCH(int, needle);
    QFETCH(int, line);
    QFETCH(int, needles);
    QFETCH(int, lineStep);
    QFETCH(int, lines);
    QNodrixCom::normaNeedleLine(needle, line, needles, lineStep, lines);
    QTEST(needle, "needleAfter");
    QTEST(line, "lineAfter");
}

void tst_QNodrixCom_Geometry::normaNeedleLineOfs_data()
{
    QTest::addColumn<int>("needle");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("needles");
    QTest::addColumn<int>("lineStep");
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("needleAfter");
    QTest::addColumn<int>("lineAfter");

    QTest::newRow("normaNeedleLineOfs(90,3,15,100,1,0)")
        << 90 << 3 << 15 << 100 << 1 << 0 << 5 << 4;
    QTest::newRow("normaNeedleLineOfs(10,3,-15,100,1,0)")
        << 10 << 3 << -15 << 100 << 1 << 0 << 95 << 2;
    QTest::newRow("normaNeedleLineOfs(99,9,1,100,1,10)")
        << 99 << 9 << 1 << 100 << 1 << 10 << 99 << 9;
    QTest::newRow("normaNeedleLineOfs(0,0,0,100,1,0)") << 0 << 0 << 0 << 100 << 1 << 0 << 0 << 0;
    QTest::newRow("normaNeedleLineOfs(2147483647,0,1,1000,1,0)")
        << 2147483647 << 0 << 1 << 1000 << 1 << 0 << 352 << -2147484;
    QTest::newRow("normaNeedleLineOfs(50,0,-1000,100,2,0)")
        << 50 << 0 << -1000 << 100 << 2 << 0 << 50 << -20;
    QTest::newRow("normaNeedleLineOfs(50,5,-1000,100,2,10)")
        << 50 << 5 << -1000 << 100 << 2 << 10 << 0 << 0;
    QTest::newRow("normaNeedleLineOfs(0,0,350,100,1,2)")
        << 0 << 0 << 350 << 100 << 1 << 2 << 99 << 1;
    QTest::newRow("offset wraps the needle") << INT_MAX << 0 << INT_MAX << 1 << 1 << 0 << 0 << -2;
}

void tst_QNodrixCom_Geometry::normaNeedleLineOfs()
{
    QFETCH(int, needle);
    QFETCH(int, line);
    QFETCH(int, offset);
    QFETCH(int, needles);
    QFETCH(int, lineStep);
    QFETCH(int, lines);
    QNodrixCom::normaNeedleLineOfs(needle, line, offset, needles, lineStep, lines);
    QTEST(needle, "needleAfter");
    QTEST(line, "lineAfter");
}

void tst_QNodrixCom_Geometry::normaDegree10Step_data()
{
    QTest::addColumn<int>("degree10");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("degree10After");
    QTest::addColumn<int>("stepAfter");

    QTest::newRow("normaDegree10Step(3600,0)") << 3600 << 0 << 0 << 1;
    QTest::newRow("normaDegree10Step(7250,1)") << 7250 << 1 << 50 << 3;
    QTest::newRow("normaDegree10Step(3599,0)") << 3599 << 0 << 3599 << 0;
    QTest::newRow("normaDegree10Step(-100,2)") << -100 << 2 << 3500 << 1;
    QTest::newRow("normaDegree10Step(-100,0)") << -100 << 0 << 100 << 0;
    QTest::newRow("normaDegree10Step(-3700,0)") << -3700 << 0 << 100 << 0;
    QTest::newRow("normaDegree10Step(-7300,1)") << -7300 << 1 << 100 << 0;
    QTest::newRow("normaDegree10Step(-3600,0)") << -3600 << 0 << 0 << 0;
    QTest::newRow("normaDegree10Step(0,0)") << 0 << 0 << 0 << 0;
    QTest::newRow("normaDegree10Step(-1,5)") << -1 << 5 << 3599 << 4;
    QTest::newRow("normaDegree10Step(-7200,2)") << -7200 << 2 << 0 << 0;
    QTest::newRow("normaDegree10Step(-7201,2)") << -7201 << 2 << 1 << 0;
    QTest::newRow("normaDegree10Step(36000000,0)") << 36000000 << 0 << 0 << 10000;
    QTest::newRow("normaDegree10Step(3600,2147483647)") << 3600 << 2147483647 << 0 << INT_MIN;
    QTest::newRow("normaDegree10Step(-100,-3)") << -100 << -3 << 100 << 0;
    QTest::newRow("normaDegree10Step(-3599,0)") << -3599 << 0 << 3599 << 0;
    QTest::newRow("INT_MAX") << INT_MAX << 0 << INT_MAX % 3600 << INT_MAX / 3600;
    QTest::newRow("INT_MIN, no step") << INT_MIN << 0 << 848 << 0;
    QTest::newRow("INT_MIN, all steps") << INT_MIN << INT_MAX << 2752 << INT_MAX - 596524;
    QTest::newRow("step wraps") << 7200 << INT_MAX << 0 << INT_MIN + 1;
}

void tst_QNodrixCom_Geometry::normaDegree10Step()
{
    QFETCH(int, degree10);
    QFETCH(int, step);
    QNodrixCom::normaDegree10Step(degree10, step);
    QTEST(degree10, "degree10After");
    QTEST(step, "stepAfter");
}

void tst_QNodrixCom_Geometry::foldsAreConstantTime()
{
    // A needle of INT_MAX on a one-needle cylinder must come back at once.
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 1000; ++i) {
        int needle = INT_MAX, line = 0;
        QNodrixCom::normaNeedleLine(needle, line, 1, 1, 0);
        int degree = INT_MIN, step = INT_MAX;
        QNodrixCom::normaDegree10Step(degree, step);
    }
    QVERIFY2(timer.elapsed() < 2000, "the folds are computed, not iterated");
}

void tst_QNodrixCom_Geometry::normaValueInRange_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("expected");

    QTest::newRow("inside") << 5 << 0 << 10 << 5;
    QTest::newRow("below") << -1 << 0 << 10 << 0;
    QTest::newRow("above") << 11 << 0 << 10 << 10;
    QTest::newRow("at min") << 0 << 0 << 10 << 0;
    QTest::newRow("at max") << 10 << 0 << 10 << 10;
    QTest::newRow("min > max, below min") << 1 << 5 << 3 << 5;
    QTest::newRow("min > max, otherwise max") << 6 << 5 << 3 << 3;
    QTest::newRow("min > max, at min") << 5 << 5 << 3 << 3;
    QTest::newRow("extremes") << INT_MIN << INT_MIN << INT_MAX << INT_MIN;
}

void tst_QNodrixCom_Geometry::normaValueInRange()
{
    QFETCH(int, value);
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(int, expected);
    QCOMPARE(QNodrixCom::normaValueInRange(value, min, max), expected);
}

void tst_QNodrixCom_Geometry::normaValueInRangePos_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("def");
    QTest::addColumn<int>("expected");

    QTest::newRow("0 gives default inside range") << 0 << -5 << 5 << 3 << 3;
    QTest::newRow("0 gives default outside range") << 0 << 1 << 5 << 99 << 99;
    QTest::newRow("inside") << 4 << 1 << 5 << 99 << 4;
    QTest::newRow("below") << -4 << 1 << 5 << 99 << 1;
    QTest::newRow("above") << 6 << 1 << 5 << 99 << 5;
}

void tst_QNodrixCom_Geometry::normaValueInRangePos()
{
    QFETCH(int, value);
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(int, def);
    QFETCH(int, expected);
    QCOMPARE(QNodrixCom::normaValueInRangePos(value, min, max, def), expected);
}

NDXCOM_TEST_MAIN(tst_QNodrixCom_Geometry)
#include "tst_qnodrixcom_geometry.moc"

#include "qnodrixcom.h"

#include <QtCore/QtGlobal>

#include <climits>

// The geometry is defined on 32-bit signed integers whose products wrap. C++
// leaves signed overflow undefined, so every wrapping operation goes through
// unsigned arithmetic, and the few quotients that could overflow (INT_MIN / -1)
// or divide by zero are guarded.
namespace {

inline int wrap(quint32 v)
{
    return static_cast<int>(v); // modular conversion, well defined since C++20 and in GCC/Clang
}

inline int mul(int a, int b)
{
    return wrap(quint32(a) * quint32(b));
}

inline int add(int a, int b)
{
    return wrap(quint32(a) + quint32(b));
}

inline int sub(int a, int b)
{
    return wrap(quint32(a) - quint32(b));
}

// Truncating division; INT_MIN / -1 wraps to INT_MIN as the hardware product would.
inline int quot(int a, int b)
{
    if (b == -1)
        return sub(0, a);
    return a / b;
}

// Remainder with the sign of the dividend; x % -1 is 0.
inline int rem(int a, int b)
{
    if (b == -1)
        return 0;
    return a % b;
}

// Both angle-to-needle conversions share their untruncated mode: 1 when the
// quotient plus a scaled remainder reaches 5, else 0.
inline int angleToNeedle(int product, bool bTruncate)
{
    const int q = product / 3600;
    if (bTruncate)
        return q;
    const int r = rem(mul(10, product), 3600);
    return q + r >= 5 ? 1 : 0; // |q| <= 596523 and |r| < 3600: no overflow
}

inline int needleToAngle(int product, int nNeedles, bool bTruncate)
{
    // 10 * nNeedles is even, so never -1; it is 0 for a count of 0 and, once
    // wrapped, for INT_MIN. Neither describes a machine: both answer 0.
    const int divisor = mul(10, nNeedles);
    if (divisor == 0)
        return 0;
    const int q = quot(product, divisor);
    if (bTruncate)
        return q;
    return rem(product, nNeedles) >= 5 ? add(q, 1) : q;
}

// Folds a needle into 0 .. nNeedles - 1 (nNeedles > 0). Each fold moves the
// line by nLineStep; the count of folds is computed, not iterated, and the
// line moves by count * step modulo 2^32, exactly as that many additions.
void foldNeedle(int &nNeedle, int &nLine, int nNeedles, int nLineStep)
{
    if (nNeedle >= nNeedles) {
        const int folds = nNeedle / nNeedles;
        nNeedle -= folds * nNeedles; // stays within [0, nNeedles)
        nLine = add(nLine, mul(folds, nLineStep));
    } else if (nNeedle < 0) {
        const qint64 folds = (-qint64(nNeedle) + nNeedles - 1) / nNeedles;
        nNeedle = int(qint64(nNeedle) + folds * nNeedles);
        nLine = sub(nLine, mul(int(folds), nLineStep));
    }
}

// The clamp that applies when nLines is not 0. Returns true when it decided
// both references.
bool clampLine(int &nNeedle, int &nLine, int nNeedles, int nLines)
{
    if (nLines == 0)
        return false;
    if (nLine >= nLines) {
        nLine = sub(nLines, 1);
        nNeedle = nNeedles - 1;
        return true;
    }
    if (nLine < 0) {
        nLine = 0;
        nNeedle = 0;
        return true;
    }
    return false;
}

} // namespace

int QNodrixCom::needleFromDegree(int nDegree, int nNeedles, bool bTruncate)
{
    return angleToNeedle(mul(mul(10, nDegree), nNeedles), bTruncate);
}

int QNodrixCom::needleFromDegree10(int nDegree10, int nNeedles, bool bTruncate)
{
    return angleToNeedle(mul(nDegree10, nNeedles), bTruncate);
}

int QNodrixCom::degreeFromNeedle(int nNeedle, int nNeedles, bool bTruncate)
{
    return needleToAngle(mul(nNeedle, 3600), nNeedles, bTruncate);
}

int QNodrixCom::degree10FromNeedle(int nNeedle, int nNeedles, bool bTruncate)
{
    return needleToAngle(mul(nNeedle, 36000), nNeedles, bTruncate);
}

void QNodrixCom::normaNeedleLine(int &nNeedle, int &nLine, int nNeedles, int nLineStep, int nLines)
{
    if (nNeedles <= 0)
        return;
    foldNeedle(nNeedle, nLine, nNeedles, nLineStep);
    clampLine(nNeedle, nLine, nNeedles, nLines);
}

void QNodrixCom::normaNeedleLineOfs(int &nNeedle, int &nLine, int nOffset, int nNeedles,
                                    int nLineStep, int nLines)
{
    if (nNeedles <= 0)
        return;
    int needle = add(nNeedle, nOffset);
    foldNeedle(needle, nLine, nNeedles, nLineStep);
    clampLine(needle, nLine, nNeedles, nLines);
    nNeedle = needle;
}

void QNodrixCom::normaDegree10Step(int &nDegree10, int &nStep)
{
    if (nDegree10 >= 3600) {
        nStep = add(nStep, nDegree10 / 3600);
        nDegree10 %= 3600;
        return;
    }
    if (nDegree10 >= 0)
        return;
    // Borrow one step per turn while steps remain...
    const qint64 turns = (-qint64(nDegree10) + 3599) / 3600;
    if (nStep > 0) {
        const qint64 borrowed = qMin<qint64>(turns, nStep);
        nDegree10 = int(nDegree10 + borrowed * 3600);
        nStep -= int(borrowed);
        if (nDegree10 >= 0)
            return;
    }
    // ...then, with none left, mirror the rest instead of wrapping it.
    nDegree10 = -(nDegree10 % 3600);
    nStep = 0;
}

int QNodrixCom::normaValueInRange(int nValue, int nMin, int nMax)
{
    if (nValue < nMin)
        return nMin;
    if (nValue > nMax)
        return nMax;
    return nValue;
}

int QNodrixCom::normaValueInRangePos(int nValue, int nMin, int nMax, int nDefault)
{
    if (nValue == 0)
        return nDefault;
    return normaValueInRange(nValue, nMin, nMax);
}

#include "qnodrixmessagebox_p.h"

#include <QtCore/QVarLengthArray>

#include <algorithm>
#include <iterator>

// How arguments reach a box's text: cut, cleaned of control and direction
// characters, and filled in once. Compiled into the tools and benchmarks as
// well (NdxComInternals), with the category they log to.
Q_LOGGING_CATEGORY(lcNdxComMessages, "ndxcom.messages", QtCriticalMsg)

namespace NdxComMessages {

QString elidedMiddle(const QString &text, int limit)
{
    if (limit < 1)
        return QString();
    if (text.size() <= limit)
        return text;
    qsizetype head = (limit - 1) / 2;
    qsizetype tail = limit - 1 - head;
    if (head > 0 && text.at(head - 1).isHighSurrogate())
        --head;
    if (tail > 0 && text.at(text.size() - tail).isLowSurrogate())
        --tail;
    QString cut;
    cut.reserve(head + 1 + tail);
    cut.append(text.constData(), head);
    cut.append(QChar(0x2026));
    cut.append(text.constData() + text.size() - tail, tail);
    return cut;
}

QString plainArgument(QString text, ArgumentLines lines)
{
    const bool keepBreaks = lines == ArgumentLines::LineBreaksKept;
    // Cut first: a megabyte name costs no more than one of the limit's length.
    const int limit = keepBreaks ? MessageLengthLimit : ArgumentLengthLimit;
    if (text.size() > limit)
        qCDebug(lcNdxComMessages) << "an argument of" << text.size() << "characters is cut to"
                                  << limit;
    text = elidedMiddle(text, limit);
    for (QChar &c : text) {
        const ushort u = c.unicode();
        if (keepBreaks && (u == '\n' || u == '\t'))
            continue;
        if (u < 0x20 || (u >= 0x7f && u <= 0x9f) || u == 0x061c || u == 0x200e || u == 0x200f
            || u == 0x2028 || u == 0x2029 || (u >= 0x202a && u <= 0x202e)
            || (u >= 0x2066 && u <= 0x2069))
            c = QChar(QChar::ReplacementCharacter);
    }
    return text;
}

QString fillArguments(const QString &text, const QStringList &arguments)
{
    // The markers as QString::arg finds them: '%', an optional 'L', one or
    // two digits.
    struct Marker
    {
        qsizetype at;
        qsizetype length;
        int number;
    };
    QVarLengthArray<Marker, 8> markers;
    const QChar *const begin = text.constData();
    const QChar *const end = begin + text.size();
    const auto digit = [](QChar c) {
        return c.unicode() >= '0' && c.unicode() <= '9' ? int(c.unicode() - '0') : -1;
    };
    for (const QChar *c = begin; c != end;) {
        if (c->unicode() != '%') {
            ++c;
            continue;
        }
        const QChar *const start = c;
        if (++c == end)
            break;
        if (c->unicode() == 'L' && ++c == end)
            break;
        int number = digit(*c);
        if (number < 0)
            continue;
        if (++c != end && digit(*c) >= 0)
            number = number * 10 + digit(*c++);
        markers.append(Marker {start - begin, c - start, number});
    }
    if (markers.isEmpty() || arguments.isEmpty())
        return text;

    // The k-th lowest number takes the k-th argument.
    int argumentOf[100];
    std::fill(std::begin(argumentOf), std::end(argumentOf), -1);
    bool present[100] = {};
    for (const Marker &m : markers)
        present[m.number] = true;
    for (int number = 0, next = 0; number < 100 && next < arguments.size(); ++number) {
        if (present[number])
            argumentOf[number] = next++;
    }

    QString filled;
    qsizetype from = 0;
    for (const Marker &m : markers) {
        const int index = argumentOf[m.number];
        if (index < 0)
            continue;
        filled.append(begin + from, m.at - from);
        filled.append(arguments.at(index));
        from = m.at + m.length;
    }
    filled.append(begin + from, text.size() - from);
    return filled;
}

} // namespace NdxComMessages

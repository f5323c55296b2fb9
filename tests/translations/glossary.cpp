#include "glossary.h"

#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QRegularExpression>

namespace NdxComTest {

namespace {

struct Table
{
    QList<QStringList> rows; // the heading row first
    QList<int> lines;
};

// A cell's text without the Markdown that only dresses it.
QString plain(QString text)
{
    text = text.trimmed();
    if (text.size() >= 4 && text.startsWith(QLatin1String("**"))
        && text.endsWith(QLatin1String("**")))
        text = text.mid(2, text.size() - 4).trimmed();
    if (text.size() >= 2 && text.startsWith(QLatin1Char('`')) && text.endsWith(QLatin1Char('`')))
        text = text.mid(1, text.size() - 2);
    return text;
}

QStringList cells(const QString &line)
{
    QString row = line.trimmed();
    if (row.startsWith(QLatin1Char('|')))
        row.remove(0, 1);
    if (row.endsWith(QLatin1Char('|')) && !row.endsWith(QLatin1String("\\|")))
        row.chop(1);
    QStringList result;
    QString cell;
    for (int i = 0; i < row.size(); ++i) {
        if (row.at(i) == QLatin1Char('\\') && i + 1 < row.size()
            && row.at(i + 1) == QLatin1Char('|')) {
            cell += QLatin1Char('|');
            ++i;
        } else if (row.at(i) == QLatin1Char('|')) {
            result << cell.trimmed();
            cell.clear();
        } else {
            cell += row.at(i);
        }
    }
    result << cell.trimmed();
    return result;
}

bool isSeparator(const QStringList &row)
{
    static const QRegularExpression dashes(QStringLiteral("^:?-+:?$"));
    for (const QString &cell : row) {
        if (!dashes.match(cell).hasMatch())
            return false;
    }
    return true;
}

// The first table under the level-two heading `heading`, up to the next
// heading of that level.
Table tableUnder(const QStringList &lines, const QString &heading)
{
    Table table;
    bool inSection = false;
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i).trimmed();
        if (line.startsWith(QLatin1String("## "))) {
            if (inSection)
                break;
            inSection = line.mid(3).trimmed().compare(heading, Qt::CaseInsensitive) == 0;
            continue;
        }
        if (!inSection)
            continue;
        if (line.startsWith(QLatin1Char('|'))) {
            const QStringList row = cells(line);
            if (!isSeparator(row)) {
                table.rows << row;
                table.lines << i + 1;
            }
        } else if (!table.rows.isEmpty()) {
            break; // the table ended
        }
    }
    return table;
}

QStringList forms(const QString &cell)
{
    QStringList result;
    for (const QString &form : cell.split(QStringLiteral(" / "))) {
        const QString text = plain(form);
        // A dash says "nothing here" in a Markdown table.
        if (!text.isEmpty() && text != QLatin1String("-") && text != QStringLiteral("\u2014")
            && text != QStringLiteral("\u2013"))
            result << text;
    }
    return result;
}

QString unescapePrefix(const QString &text)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('\\') && i + 1 < text.size()) {
            const QChar next = text.at(i + 1);
            if (next == QLatin1Char('n') || next == QLatin1Char('t')) {
                result += next == QLatin1Char('n') ? QLatin1Char('\n') : QLatin1Char('\t');
                ++i;
                continue;
            }
        }
        result += text.at(i);
    }
    return result;
}

QRegularExpression pattern(const QString &form, bool wholeWord)
{
    static QHash<QPair<QString, bool>, QRegularExpression> cache;
    const auto key = qMakePair(form, wholeWord);
    auto it = cache.constFind(key);
    if (it != cache.constEnd())
        return *it;
    // "#" is a number in digits, captured; everything else is literal.
    QStringList words;
    for (const QString &word : form.simplified().split(QLatin1Char(' '))) {
        QStringList pieces;
        for (const QString &piece : word.split(QLatin1Char('#')))
            pieces << QRegularExpression::escape(piece);
        words << pieces.join(QLatin1String("([0-9]+)"));
    }
    QString expression = words.join(QLatin1String("\\s+"));
    if (wholeWord)
        expression = QStringLiteral("(?<!\\w)") + expression + QStringLiteral("(?!\\w)");
    const QRegularExpression re(expression,
                                QRegularExpression::CaseInsensitiveOption
                                    | QRegularExpression::UseUnicodePropertiesOption);
    cache.insert(key, re);
    return re;
}

} // namespace

bool Glossary::load(const QString &path)
{
    m_terms.clear();
    m_exceptions.clear();
    m_avoidances.clear();
    m_error.clear();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        m_error = QStringLiteral("%1: %2").arg(path, file.errorString());
        return false;
    }
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));

    const Table terms = tableUnder(lines, QStringLiteral("Terms"));
    if (terms.rows.isEmpty()) {
        m_error = QStringLiteral("%1: no table under \"## Terms\"").arg(path);
        return false;
    }
    const QStringList heading = terms.rows.first();
    int italian = -1;
    QMap<QString, int> columns;
    for (int c = 0; c < heading.size(); ++c) {
        const QString h = plain(heading.at(c));
        if (h.startsWith(QLatin1String("Italiano"), Qt::CaseInsensitive))
            italian = c;
        else if (h.startsWith(QLatin1String("English"), Qt::CaseInsensitive))
            columns.insert(QStringLiteral("en"), c);
        else if (h.startsWith(QStringLiteral("Espa\u00f1ol"), Qt::CaseInsensitive))
            columns.insert(QStringLiteral("es"), c);
        else if (h.contains(QLatin1String("(szh)")))
            columns.insert(QStringLiteral("szh"), c);
        else if (h.contains(QLatin1String("(zh)")))
            columns.insert(QStringLiteral("zh"), c);
    }
    if (italian < 0 || columns.size() != 4) {
        m_error = QStringLiteral("%1:%2: the terms table needs the columns Italiano, English, "
                                 "Espa\u00f1ol, ... (zh) and ... (szh)")
                      .arg(path)
                      .arg(terms.lines.first());
        return false;
    }
    for (int r = 1; r < terms.rows.size(); ++r) {
        const QStringList &row = terms.rows.at(r);
        GlossaryTerm term;
        term.line = terms.lines.at(r);
        term.italian = forms(row.value(italian));
        for (auto it = columns.cbegin(); it != columns.cend(); ++it)
            term.forms.insert(it.key(), forms(row.value(it.value())));
        m_terms << term;
    }

    const Table exceptions = tableUnder(lines, QStringLiteral("Exceptions"));
    if (!exceptions.rows.isEmpty()) {
        int language = -1, termColumn = -1, source = -1, why = -1;
        const QStringList head = exceptions.rows.first();
        for (int c = 0; c < head.size(); ++c) {
            const QString h = plain(head.at(c));
            if (h.startsWith(QLatin1String("Language"), Qt::CaseInsensitive))
                language = c;
            else if (h.startsWith(QLatin1String("Term"), Qt::CaseInsensitive))
                termColumn = c;
            else if (h.startsWith(QLatin1String("Source"), Qt::CaseInsensitive))
                source = c;
            else if (h.startsWith(QLatin1String("Why"), Qt::CaseInsensitive))
                why = c;
        }
        if (language < 0 || termColumn < 0 || source < 0) {
            m_error = QStringLiteral("%1:%2: the exceptions table needs the columns Language, "
                                     "Term and Source text begins with")
                          .arg(path)
                          .arg(exceptions.lines.first());
            return false;
        }
        for (int r = 1; r < exceptions.rows.size(); ++r) {
            const QStringList &row = exceptions.rows.at(r);
            GlossaryException e;
            e.line = exceptions.lines.at(r);
            e.language = plain(row.value(language));
            e.term = plain(row.value(termColumn));
            e.sourcePrefix = unescapePrefix(plain(row.value(source)));
            e.why = why >= 0 ? plain(row.value(why)) : QString();
            m_exceptions << e;
        }
    }

    const Table avoided = tableUnder(lines, QStringLiteral("Renderings to avoid"));
    if (!avoided.rows.isEmpty()) {
        int italianColumn = -1, language = -1, never = -1, why = -1;
        const QStringList head = avoided.rows.first();
        for (int c = 0; c < head.size(); ++c) {
            const QString h = plain(head.at(c));
            if (h.startsWith(QLatin1String("Italiano"), Qt::CaseInsensitive))
                italianColumn = c;
            else if (h.startsWith(QLatin1String("Language"), Qt::CaseInsensitive))
                language = c;
            else if (h.startsWith(QLatin1String("Never"), Qt::CaseInsensitive))
                never = c;
            else if (h.startsWith(QLatin1String("Why"), Qt::CaseInsensitive))
                why = c;
        }
        if (italianColumn < 0 || language < 0 || never < 0) {
            m_error = QStringLiteral("%1:%2: the table of renderings to avoid needs the columns "
                                     "Italiano, Language and Never")
                          .arg(path)
                          .arg(avoided.lines.first());
            return false;
        }
        for (int r = 1; r < avoided.rows.size(); ++r) {
            const QStringList &row = avoided.rows.at(r);
            GlossaryAvoidance a;
            a.line = avoided.lines.at(r);
            a.italian = forms(row.value(italianColumn));
            a.language = plain(row.value(language));
            a.forms = forms(row.value(never));
            a.why = why >= 0 ? plain(row.value(why)) : QString();
            m_avoidances << a;
        }
    }
    return true;
}

const GlossaryTerm *Glossary::term(const QString &italianForm) const
{
    for (const GlossaryTerm &t : m_terms) {
        for (const QString &form : t.italian) {
            if (form.compare(italianForm, Qt::CaseInsensitive) == 0)
                return &t;
        }
    }
    return nullptr;
}

bool Glossary::containsWord(const QString &text, const QString &form)
{
    return pattern(form, true).match(text).hasMatch();
}

bool Glossary::containsText(const QString &text, const QString &form)
{
    return pattern(form, false).match(text).hasMatch();
}

QStringList Glossary::numbers(const QString &text, const QString &form)
{
    QStringList result;
    if (!form.contains(QLatin1Char('#')))
        return result;
    auto it = pattern(form, true).globalMatch(text);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        for (int i = 1; i <= match.lastCapturedIndex(); ++i)
            result << match.captured(i);
    }
    return result;
}

} // namespace NdxComTest

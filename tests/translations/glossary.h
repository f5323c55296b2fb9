#ifndef GLOSSARY_H
#define GLOSSARY_H

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace NdxComTest {

// One term of translations/GLOSSARY.md: its Italian forms and, per language
// ("en", "es", "zh", "szh"), the forms a translation may render it with.
struct GlossaryTerm
{
    QStringList italian;
    QMap<QString, QStringList> forms;
    int line = 0; // in the file, for messages
};

// A translation exempted from one term: in `language`, the term with the
// Italian form `term`, in the source texts that begin with `sourcePrefix`.
struct GlossaryException
{
    QString language;
    QString term;
    QString sourcePrefix;
    QString why;
    int line = 0;
};

// A rendering the translators must not use: in `language`, none of `forms`
// in the translation of a source text that holds one of the Italian forms.
struct GlossaryAvoidance
{
    QStringList italian;
    QString language;
    QStringList forms;
    QString why;
    int line = 0;
};

// The terminology glossary the translators keep beside the catalogues. It is
// Markdown, written to be read: under "## Terms" a table
//   | Italiano | English | Español | 繁體中文 (zh) | 简体中文 (szh) | Why |
// whose language cells list forms separated by " / ", and under
// "## Exceptions" a table
//   | Language | Term (Italian form) | Source text begins with | Why |
// and under "## Renderings to avoid" a table
//   | Italiano | Language | Never | Why |
// Columns are found by their headings. A cell or form wrapped in `backticks`
// or **bold** counts without them, "\|" is a '|' within a cell, and in the
// source prefix "\n" and "\t" stand for a line break and a tab. In a form, "#"
// stands for a number written in digits ("# cadute" = "4 cadute", "8 cadute").
class Glossary
{
public:
    bool load(const QString &path);
    QString errorString() const { return m_error; }

    QList<GlossaryTerm> terms() const { return m_terms; }
    QList<GlossaryException> exceptions() const { return m_exceptions; }
    QList<GlossaryAvoidance> avoidances() const { return m_avoidances; }

    // The term one of whose Italian forms is `italianForm` (case-insensitive),
    // or nullptr.
    const GlossaryTerm *term(const QString &italianForm) const;

    // Whether `text` holds `form` as a whole word (case-insensitive; any run
    // of blanks or line breaks matches a blank of the form).
    static bool containsWord(const QString &text, const QString &form);
    // Whether `text` holds `form` anywhere (case-insensitive, blanks as above):
    // Chinese writes no blanks between words.
    static bool containsText(const QString &text, const QString &form);
    // The numbers that stand for the "#" of `form` where `text` holds it as a
    // whole word, in the order they occur; empty for a form without "#".
    static QStringList numbers(const QString &text, const QString &form);

private:
    QList<GlossaryTerm> m_terms;
    QList<GlossaryException> m_exceptions;
    QList<GlossaryAvoidance> m_avoidances;
    QString m_error;
};

} // namespace NdxComTest

#endif // GLOSSARY_H

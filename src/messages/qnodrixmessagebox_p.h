#ifndef QNODRIXMESSAGEBOX_P_H
#define QNODRIXMESSAGEBOX_P_H

//
//  W A R N I N G
//  -------------
//
// This file is not part of the NdxCom API. It may change from version to
// version without notice, or even be removed.
//

#include "ndxcom_export.h"
#include "qnodrixmessagebox.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QStringList>

// "ndxcom.messages": an advisory asked for with a value that has no text, and
// arguments cut to the length a box can show. Off unless turned on.
Q_DECLARE_LOGGING_CATEGORY(lcNdxComMessages)

namespace NdxComMessages {

using StandardButton = QMessageBox::StandardButton;

// One button of a box: its source text (translated in the context
// QNodrixMessageBox when shown), its role, and the outcome it reports when
// clicked (NoButton: not remembered, the box's fall-through applies).
struct ButtonShape
{
    const char *text = nullptr;
    QMessageBox::ButtonRole role = QMessageBox::NoRole;
    StandardButton outcome = QMessageBox::NoButton;
};

// Everything that makes a box of the suite: icon, up to three buttons in the
// order they are added, the default button, a fixed button width, a minimum
// box width, and the outcome of every other way the box can end. Tables
// build a box step by step, so that each entry names what it sets:
//
//     constexpr BoxShape box = BoxShape(QMessageBox::Warning)
//                                 .button("Si", QMessageBox::AcceptRole, QMessageBox::Yes)
//                                 .defaultButton("No", QMessageBox::RejectRole)
//                                 .otherwise(QMessageBox::No);
//
// What a box does not set stays off: no default button, no fixed width, no
// minimum width, NoButton for every other end.
struct BoxShape
{
    constexpr explicit BoxShape(QMessageBox::Icon boxIcon)
        : icon(boxIcon)
    { }

    // Adds a button after those already added; a click on it reports
    // `outcome`, or the fall-through when that is NoButton.
    constexpr BoxShape button(const char *text, QMessageBox::ButtonRole role,
                              StandardButton outcome = QMessageBox::NoButton) const
    {
        BoxShape next = *this;
        next.buttons[next.buttonCount++] = ButtonShape {text, role, outcome};
        return next;
    }
    // The same, and the button is the box's default.
    constexpr BoxShape defaultButton(const char *text, QMessageBox::ButtonRole role,
                                     StandardButton outcome = QMessageBox::NoButton) const
    {
        BoxShape next = button(text, role, outcome);
        next.defaultIndex = next.buttonCount - 1;
        return next;
    }
    // Every button this many pixels wide; a wider translated label widens
    // its button.
    constexpr BoxShape buttonWidth(int pixels) const
    {
        BoxShape next = *this;
        next.fixedButtonWidth = pixels;
        return next;
    }
    // The box at least this many pixels wide (a spacer row below the text).
    constexpr BoxShape minimumWidth(int pixels) const
    {
        BoxShape next = *this;
        next.minimumBoxWidth = pixels;
        return next;
    }
    // What every other end of the box reports: a button without an outcome,
    // Escape, the window closed without a click.
    constexpr BoxShape otherwise(StandardButton outcome) const
    {
        BoxShape next = *this;
        next.fallThrough = outcome;
        return next;
    }

    QMessageBox::Icon icon;
    ButtonShape buttons[3] = {};
    int buttonCount = 0;
    int defaultIndex = -1; // into buttons, -1 for none
    int fixedButtonWidth = 0; // 0 for none
    int minimumBoxWidth = 0; // 0 for none
    StandardButton fallThrough = QMessageBox::NoButton;
};

// The eleven fixed presentations, in the order of the class's declarations.
enum class Presentation {
    Question,
    Warning,
    YesNoIgnore,
    ResizeScs,
    WarningClose,
    CriticalClose,
    WarningOk,
    WarningCloseHelp,
    InformationClose,
    InformationYesNoHelp,
    YesNoNewName
};

const BoxShape &presentationShape(Presentation presentation);

// Builds a box of the suite (fixed untranslated title "Nodrix", the product
// window icon, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint, no parent, plain
// text), runs it modally and maps the clicked button to its outcome.
StandardButton runBox(const BoxShape &layout, const QString &text);

// Translates a source text in the context QNodrixMessageBox and fills %1,
// %2, ... in order with fillArguments(), each argument as plainArgument()
// gives it.
QString fillText(const char *source, const QStringList &arguments);

// The common course of an advisor: a local QNodrixMessageBox without parent
// gets the text and shows it with the presentation. Returns the
// presentation's outcome (NoButton for presentations without one).
StandardButton showAdvisor(Presentation presentation, const QString &text);

// One case of a numbered advisor: the enumeration value it answers, its source
// text (marked with QT_TRANSLATE_NOOP("QNodrixMessageBox", ...) so that lupdate
// extracts it; translated when shown) and the presentation that shows it.
struct AdvisorCase
{
    int value;
    const char *text;
    Presentation presentation;
};

// The case of `value` in a family's table, or nullptr when the family has no
// case for it (such values show nothing).
const AdvisorCase *findCase(const AdvisorCase *table, int count, int value);

template<int N>
const AdvisorCase *findCase(const AdvisorCase (&table)[N], int value)
{
    return findCase(table, N, value);
}

// Shows one case: translates and fills its text from `arguments` and runs its
// presentation. Returns the presentation's outcome (NoButton for those
// without one).
StandardButton showCase(const AdvisorCase &advisorCase, const QStringList &arguments);

// An argument as a box shows it. Every box of the library is a plain-text box,
// so markup in an argument ("<b>", "<img src=...>", "<a href=...>") is shown
// as the characters it is and never formats the box or loads anything. What
// plain text still obeys is replaced by U+FFFD, one for one: the control
// characters (U+0000-U+001F with tab and line break, U+007F-U+009F), the line
// and paragraph separators U+2028 and U+2029, and the bidirectional formatting
// characters (U+061C, U+200E, U+200F, U+202A-U+202E, U+2066-U+2069), so that a
// name read from a file cannot break, hide or reorder the words of the
// library's own text around it. Only arguments are treated so, never the
// library's texts or their translations.
//
// An argument longer than ArgumentLengthLimit characters is cut in its middle
// to that length, with an ellipsis (U+2026) where the cut is: a lock may name
// a computer of a megabyte, and the box must still fit the screen and show
// its buttons. The beginning and the end of a path, its drive and its file
// name, stay. Shorter arguments are shown exactly.
//
// The message of a diagnostic report is the application's own wording, often
// written on several lines: with LineBreaksKept its line breaks and tabs stay
// (everything else above is still replaced) and it is cut only beyond
// MessageLengthLimit characters. The class and function names of a report are
// single words and get no such exception.
enum class ArgumentLines { Replaced, LineBreaksKept };
constexpr int ArgumentLengthLimit = 260;
constexpr int MessageLengthLimit = 2048;
NDXCOM_AUTOTEST_EXPORT QString plainArgument(QString text,
                                             ArgumentLines lines = ArgumentLines::Replaced);

// `text` itself when it has at most `limit` characters; otherwise its first
// and last characters around an ellipsis (U+2026), `limit` characters in all.
// A surrogate pair is never split. Costs O(limit), whatever the text's length.
NDXCOM_AUTOTEST_EXPORT QString elidedMiddle(const QString &text, int limit);

// Fills the markers %1, %2, ... (also %L1, and two-digit numbers) of `text`
// in one pass: the lowest marker number present takes the first argument,
// the next lowest the second, and so on, every occurrence of a number the
// same argument; markers left over stay as they are. This is what one
// QString::arg after another gives for arguments without '%', but a "%1" or
// "%L2" inside an argument is shown as it stands instead of being filled by
// a later argument.
NDXCOM_AUTOTEST_EXPORT QString fillArguments(const QString &text, const QStringList &arguments);

// Shows one of Qt's standard boxes (what QMessageBox::critical, warning and
// information show: the icon, title and text, an OK button, which is also
// the default) over `parent`, as a plain-text box, and runs it modally.
void showStandardBox(QMessageBox::Icon icon, QWidget *parent, const QString &title,
                     const QString &text);

// Sets an override cursor for the lifetime of the object.
class OverrideCursor
{
public:
    explicit OverrideCursor(Qt::CursorShape shape);
    ~OverrideCursor();
    OverrideCursor(const OverrideCursor &) = delete;
    OverrideCursor &operator=(const OverrideCursor &) = delete;
};

} // namespace NdxComMessages

#endif // QNODRIXMESSAGEBOX_P_H

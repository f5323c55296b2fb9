#ifndef QNODRIXMESSAGEBOX_P_H
#define QNODRIXMESSAGEBOX_P_H

//
//  W A R N I N G
//  -------------
//
// This file is not part of the NdxCom API. It may change from version to
// version without notice, or even be removed.
//

#include "qnodrixmessagebox.h"

#include <QtCore/QStringList>

namespace QNodrixMessageBoxPrivate {

using StandardButton = QMessageBox::StandardButton;

// One button of a box: its source text (translated in the context
// QNodrixMessageBox when shown), its role, and the outcome it reports when
// clicked (NoButton: not remembered, the box's fall-through applies).
struct ButtonSpec
{
    const char *text;
    QMessageBox::ButtonRole role;
    StandardButton outcome;
};

// Everything that makes a box of the suite: icon, up to three buttons in the
// order they are added, the default button, a fixed button width, a minimum
// box width, and the outcome of every other way the box can end.
struct BoxSpec
{
    QMessageBox::Icon icon;
    ButtonSpec buttons[3];
    int buttonCount;
    int defaultButton; // index into buttons, -1 for none
    int fixedButtonWidth; // 0 for none; a wider translated label widens its button
    StandardButton otherwise;
    int minimumBoxWidth; // 0 for none; widened with a spacer row
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

const BoxSpec &presentationSpec(Presentation presentation);

// Builds a box of the suite (fixed untranslated title "Nodrix", the product
// window icon, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint, no parent), runs
// it modally and maps the clicked button to its outcome.
StandardButton runBox(const BoxSpec &layout, const QString &text);

// Translates a source text in the context QNodrixMessageBox and fills %1,
// %2, ... one QString::arg at a time, in order (field width 0, blank fill), as
// the applications' texts have always been filled.
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

// Sets an override cursor for the lifetime of the object.
class OverrideCursor
{
public:
    explicit OverrideCursor(Qt::CursorShape shape);
    ~OverrideCursor();
    OverrideCursor(const OverrideCursor &) = delete;
    OverrideCursor &operator=(const OverrideCursor &) = delete;
};

} // namespace QNodrixMessageBoxPrivate

#endif // QNODRIXMESSAGEBOX_P_H

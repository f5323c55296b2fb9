#ifndef DIALOGDRIVER_H
#define DIALOGDRIVER_H

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>

#include <functional>

QT_BEGIN_NAMESPACE
class QTimer;
QT_END_NAMESPACE

namespace NdxComTest {

// What one button of a shown box looked like.
struct ButtonRecord
{
    QString text;
    QMessageBox::ButtonRole role = QMessageBox::InvalidRole;
    int width = 0;
    int minimumWidth = 0;
    int maximumWidth = 0;
    int sizeHintWidth = 0; // the width its text asks for
    bool isDefault = false;
};

// Everything a modal box showed while the driver watched it.
struct BoxRecord
{
    QString className;
    QString title;
    QString text;
    Qt::TextFormat textFormat = Qt::AutoText; // QMessageBox::textFormat()
    // The box's text label as it stood: its text and the format it reads it in.
    QString labelText;
    Qt::TextFormat labelFormat = Qt::AutoText;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    // In the order QMessageBox::buttons() gives: grouped by role, in the
    // order of adding within each role.
    QList<ButtonRecord> buttons;
    QString defaultButton; // text of the default button, empty for none
    QString escapeButton; // text of the escape button, empty for none
    // The message box's text label as laid out, and the room its text needs
    // at that width (the longest word, the wrapped lines).
    int labelWidth = 0;
    int labelHeight = 0;
    int labelMinimumWidth = 0;
    int labelHeightForWidth = 0;
    int width = 0;
    int height = 0;
    int minimumWidth = 0;
    // The available room of the screen the box was shown on.
    QSize screenSize;
    Qt::WindowFlags flags;
    bool hasParent = false;
    bool windowIconSet = false;
    bool hasOverrideCursor = false;
    Qt::CursorShape overrideCursor = Qt::ArrowCursor;
    bool actionFailed = false; // the box was still open after its action

    // Filled when the dialog is a QFileDialog, as it stood when shown.
    bool isFileDialog = false;
    QString directory; // directory().absolutePath()
    QStringList nameFilters;
    QString selectedNameFilter;
    QString defaultSuffix;
    QFileDialog::AcceptMode acceptMode = QFileDialog::AcceptOpen;
    QFileDialog::Options options;
    QString fileNameText; // the file-name field
    QStringList selectedFiles;

    QStringList buttonTexts() const;
    // (text, role) pairs, stable-sorted by role, so that they can be compared
    // with a list given in the order of adding.
    QList<QPair<QString, QMessageBox::ButtonRole>> buttonsByRole() const;
    const ButtonRecord *button(const QString &text) const;
};

// How to end a box.
struct Action
{
    enum Kind { Click, Escape, Enter, Close, Reject, Screenshot, TypeFileName };
    Kind kind = Reject;
    QString buttonText; // for Click; the file name for TypeFileName
    QString path; // for Screenshot: the PNG to write before closing

    static Action click(const QString &text) { return {Click, text, {}}; }
    static Action escape() { return {Escape, {}, {}}; }
    static Action enter() { return {Enter, {}, {}}; }
    // Closes the window as its title bar would (a close event).
    static Action close() { return {Close, {}, {}}; }
    // Ends the box without any clicked button.
    static Action reject() { return {Reject, {}, {}}; }
    // File dialogs: types the name into the file-name field (replacing what
    // it held, no list selection left) and accepts as the dialog's own button
    // would. The acceptance runs from the dialog's event loop, so a question
    // it asks (replace an existing file?) is the next box to drive.
    static Action typeFileName(const QString &name) { return {TypeFileName, name, {}}; }
    // File dialogs: the Cancel button.
    static Action cancel() { return {Reject, {}, {}}; }
};

// Drives the real modal boxes a call shows: arms a timer before the call,
// records each box that becomes the active modal widget, then ends it with the
// next queued action. A box beyond the queued actions is recorded and
// rejected (unexpected()). A box still open after its action is ended by
// force and marked actionFailed, so nothing waits for ever. File dialogs are
// driven the same way (Qt's widget dialog, as AA_DontUseNativeDialogs makes
// it): typeFileName() and cancel(), with what they showed in the record.
class DialogDriver : public QObject
{
    Q_OBJECT

public:
    explicit DialogDriver(QObject *parent = nullptr);
    ~DialogDriver() override;

    // Runs call() with the given actions queued; returns the boxes seen.
    QList<BoxRecord> run(const std::function<void()> &call, const QList<Action> &actions = {});

    // Boxes that appeared after the queued actions ran out.
    int unexpected() const { return m_unexpected; }
    // Whether QApplication::overrideCursor() after the call equals the one
    // before it.
    bool cursorRestored() const { return m_cursorRestored; }

private:
    void poll();
    void handle(QWidget *modal);

    QTimer *m_timer;
    QList<Action> m_actions;
    QList<BoxRecord> m_records;
    QWidget *m_current = nullptr;
    int m_ticksOnCurrent = 0;
    int m_unexpected = 0;
    bool m_cursorRestored = true;
};

// Shorthand: runs call() with one action and returns the single box seen (an
// empty record with an empty className when none appeared).
BoxRecord driveOne(const std::function<void()> &call, const Action &action,
                   int *boxesSeen = nullptr);

} // namespace NdxComTest

#endif // DIALOGDRIVER_H

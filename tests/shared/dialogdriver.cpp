#include "dialogdriver.h"

#include <QtCore/QTimer>
#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace NdxComTest {

QStringList BoxRecord::buttonTexts() const
{
    QStringList texts;
    for (const ButtonRecord &b : buttons)
        texts << b.text;
    return texts;
}

QList<QPair<QString, QMessageBox::ButtonRole>> BoxRecord::buttonsByRole() const
{
    QList<QPair<QString, QMessageBox::ButtonRole>> list;
    for (const ButtonRecord &b : buttons)
        list.append({b.text, b.role});
    std::stable_sort(list.begin(), list.end(),
                     [](const auto &a, const auto &b) { return a.second < b.second; });
    return list;
}

const ButtonRecord *BoxRecord::button(const QString &text) const
{
    for (const ButtonRecord &b : buttons) {
        if (b.text == text)
            return &b;
    }
    return nullptr;
}

namespace {
struct CursorState
{
    bool set = false;
    Qt::CursorShape shape = Qt::ArrowCursor;
    static CursorState now()
    {
        CursorState s;
        if (const QCursor *c = QApplication::overrideCursor()) {
            s.set = true;
            s.shape = c->shape();
        }
        return s;
    }
    bool operator==(const CursorState &o) const
    {
        return set == o.set && (!set || shape == o.shape);
    }
};

// Ticks of the 10 ms timer a box may stay open after its action.
constexpr int kGraceTicks = 100;

// Boxes are often created at the same address one after the other (a local on
// the same stack frame), so a handled box is marked rather than remembered.
constexpr char kHandled[] = "_ndxcom_driver_handled";

// The offscreen platform warns on every dialog that it cannot propagate size
// hints; the noise would bury real warnings in the test logs.
QtMessageHandler previousHandler = nullptr;
void quietHandler(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.contains(QLatin1String("does not support propagateSizeHints")))
        return;
    if (previousHandler)
        previousHandler(type, context, message);
}
} // namespace

DialogDriver::DialogDriver(QObject *parent)
    : QObject(parent)
    , m_timer(new QTimer(this))
{
    m_timer->setInterval(10);
    connect(m_timer, &QTimer::timeout, this, &DialogDriver::poll);
    static bool quiet = false;
    if (!quiet) {
        quiet = true;
        previousHandler = qInstallMessageHandler(quietHandler);
    }
}

DialogDriver::~DialogDriver() = default;

QList<BoxRecord> DialogDriver::run(const std::function<void()> &call, const QList<Action> &actions)
{
    m_actions = actions;
    m_records.clear();
    m_current = nullptr;
    m_ticksOnCurrent = 0;
    m_unexpected = 0;
    const CursorState before = CursorState::now();
    m_timer->start();
    call();
    m_timer->stop();
    // A box may still be pending if the call returned without running it.
    m_cursorRestored = CursorState::now() == before;
    return m_records;
}

void DialogDriver::poll()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (!modal || !modal->isVisible())
        return;
    if (modal->property(kHandled).toBool()) {
        // Still open after its action: end it by force.
        if (++m_ticksOnCurrent > kGraceTicks) {
            if (!m_records.isEmpty())
                m_records.last().actionFailed = true;
            if (auto *dialog = qobject_cast<QDialog *>(modal))
                dialog->done(0);
            else
                modal->close();
        }
        return;
    }
    m_current = modal;
    m_ticksOnCurrent = 0;
    modal->setProperty(kHandled, true);
    handle(modal);
}

void DialogDriver::handle(QWidget *modal)
{
    BoxRecord r;
    r.className = QString::fromLatin1(modal->metaObject()->className());
    r.title = modal->windowTitle();
    r.width = modal->width();
    r.height = modal->height();
    if (const QScreen *screen = modal->screen())
        r.screenSize = screen->availableGeometry().size();
    r.minimumWidth = modal->minimumSizeHint().width();
    r.flags = modal->windowFlags();
    r.hasParent = modal->parentWidget() != nullptr;
    r.windowIconSet = !modal->windowIcon().isNull()
        && modal->windowIcon().cacheKey() != QApplication::windowIcon().cacheKey();
    const CursorState cursor = CursorState::now();
    r.hasOverrideCursor = cursor.set;
    r.overrideCursor = cursor.shape;

    auto *box = qobject_cast<QMessageBox *>(modal);
    if (box) {
        r.text = box->text();
        r.textFormat = box->textFormat();
        // What the label really shows, and how it reads it.
        if (const auto *label = box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"))) {
            r.labelText = label->text();
            r.labelFormat = label->textFormat();
        }
        r.icon = box->icon();
        const QList<QAbstractButton *> buttons = box->buttons();
        for (QAbstractButton *b : buttons) {
            ButtonRecord br;
            br.text = b->text();
            br.role = box->buttonRole(b);
            br.width = b->width();
            br.minimumWidth = b->minimumWidth();
            br.maximumWidth = b->maximumWidth();
            br.sizeHintWidth = b->sizeHint().width();
            if (auto *pb = qobject_cast<QPushButton *>(b))
                br.isDefault = pb->isDefault();
            r.buttons << br;
        }
        if (QPushButton *def = box->defaultButton())
            r.defaultButton = def->text();
        if (QAbstractButton *esc = box->escapeButton())
            r.escapeButton = esc->text();
        if (auto *label = box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"))) {
            r.labelWidth = label->width();
            r.labelHeight = label->height();
            r.labelMinimumWidth = label->minimumSizeHint().width();
            r.labelHeightForWidth = label->heightForWidth(label->width());
        }
    }

    auto *fileDialog = qobject_cast<QFileDialog *>(modal);
    QLineEdit *fileNameEdit
        = fileDialog ? fileDialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")) : nullptr;
    if (fileDialog) {
        r.isFileDialog = true;
        r.directory = fileDialog->directory().absolutePath();
        r.nameFilters = fileDialog->nameFilters();
        r.selectedNameFilter = fileDialog->selectedNameFilter();
        r.defaultSuffix = fileDialog->defaultSuffix();
        r.acceptMode = fileDialog->acceptMode();
        r.options = fileDialog->options();
        r.fileNameText = fileNameEdit ? fileNameEdit->text() : QString();
        r.selectedFiles = fileDialog->selectedFiles();
    }

    Action action = Action::reject();
    if (m_actions.isEmpty())
        ++m_unexpected;
    else
        action = m_actions.takeFirst();

    if (action.kind == Action::Screenshot) {
        modal->grab().save(action.path, "PNG");
        action = Action::reject();
    }

    switch (action.kind) {
    case Action::Click: {
        QAbstractButton *target = nullptr;
        // Standard buttons carry a mnemonic on some platforms ("&OK"), not on
        // others: a click by text matches with or without it.
        const auto plain = [](QString t) { return t.remove(QLatin1Char('&')); };
        if (box) {
            for (QAbstractButton *b : box->buttons()) {
                if (b->text() == action.buttonText)
                    target = b;
            }
            for (QAbstractButton *b : box->buttons()) {
                if (!target && plain(b->text()) == plain(action.buttonText))
                    target = b;
            }
        }
        if (target)
            target->click();
        else {
            r.actionFailed = true;
            if (auto *dialog = qobject_cast<QDialog *>(modal))
                dialog->done(0);
        }
        break;
    }
    case Action::TypeFileName:
        if (fileDialog && fileNameEdit) {
            // A row selected in the list would win over the typed name.
            for (QAbstractItemView *view : fileDialog->findChildren<QAbstractItemView *>()) {
                if (view->selectionModel())
                    view->selectionModel()->clear();
            }
            fileNameEdit->setText(action.buttonText);
            QMetaObject::invokeMethod(fileDialog, "accept", Qt::QueuedConnection);
        } else {
            r.actionFailed = true;
            if (auto *dialog = qobject_cast<QDialog *>(modal))
                dialog->done(0);
            else
                modal->close();
        }
        break;
    case Action::Escape:
        QTest::keyClick(modal, Qt::Key_Escape);
        break;
    case Action::Enter:
        QTest::keyClick(modal, Qt::Key_Return);
        break;
    case Action::Close:
        modal->close();
        break;
    case Action::Reject:
    case Action::Screenshot:
        if (auto *dialog = qobject_cast<QDialog *>(modal))
            dialog->reject();
        else
            modal->close();
        break;
    }
    m_records << r;
}

BoxRecord driveOne(const std::function<void()> &call, const Action &action, int *boxesSeen)
{
    DialogDriver driver;
    const QList<BoxRecord> records = driver.run(call, {action});
    if (boxesSeen)
        *boxesSeen = records.size();
    return records.isEmpty() ? BoxRecord() : records.first();
}

} // namespace NdxComTest

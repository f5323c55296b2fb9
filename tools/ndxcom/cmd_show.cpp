#include "command.h"
#include "showfamily.h"
#include "toollanguages.h"

#include <QtCore/QFileInfo>
#include <QtCore/QMetaEnum>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

#include <algorithm>

namespace {

const char usage[] = "ndxcom show presentation|report NAME [ARGS...] [options]\n"
                     "       ndxcom show advisor FAMILY VALUE [ARGS...] [options]\n"
                     "       ndxcom show rule CODE [PARAMS...] [options]\n"
                     "       ndxcom show --list";

QString usageText()
{
    return QLatin1String(usage);
}

// Watches the modal boxes a call opens. Left alone, it only counts them and
// the user answers them; with a screenshot or answers to give it renders each
// box into a PNG and ends it, so the command runs unattended, also on the
// offscreen platform.
class Autopilot : public QObject
{
public:
    Autopilot(QString screenshot, QStringList clicks)
        : m_screenshot(std::move(screenshot))
        , m_clicks(std::move(clicks))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] { poll(); });
        m_timer.start(50);
    }

    int boxes() const { return m_boxes; }
    bool failed() const { return m_failed; }
    QStringList written() const { return m_written; }

private:
    bool unattended() const { return !m_screenshot.isEmpty() || !m_clicks.isEmpty(); }

    // The n-th box (from 1) goes to FILE.png, FILE-2.png, ...
    QString screenshotPath(int n) const
    {
        if (n == 1)
            return m_screenshot;
        const QFileInfo info(m_screenshot);
        const QString suffix
            = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
        const QString stem = m_screenshot.left(m_screenshot.size() - suffix.size());
        return stem + QLatin1Char('-') + QString::number(n) + suffix;
    }

    void poll()
    {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal || !modal->isVisible())
            return;
        if (modal == m_current) {
            // An unattended box still open after its action would keep the
            // command waiting for ever.
            if (unattended() && ++m_ticks > 40) {
                err() << "ndxcom show: the box did not close; rejecting it" << Qt::endl;
                m_failed = true;
                close(modal);
            }
            return;
        }
        m_current = modal;
        m_ticks = 0;
        ++m_boxes;
        if (!unattended())
            return;

        if (!m_screenshot.isEmpty()) {
            const QString path = screenshotPath(m_boxes);
            if (modal->grab().save(path, "PNG")) {
                m_written << path;
            } else {
                err() << "ndxcom show: cannot write " << path << Qt::endl;
                m_failed = true;
            }
        }

        auto *box = qobject_cast<QMessageBox *>(modal);
        if (!m_clicks.isEmpty() && box) {
            const QString wanted = m_clicks.takeFirst();
            QStringList texts;
            for (QAbstractButton *button : box->buttons()) {
                // "&OK" can be asked for as "OK", a two-line button with a
                // blank for the line break.
                QString plain = button->text();
                plain.remove(QLatin1Char('&')).replace(QLatin1Char('\n'), QLatin1Char(' '));
                texts << QLatin1Char('"') + button->text() + QLatin1Char('"');
                if (button->text() == wanted || plain == wanted) {
                    button->click();
                    return;
                }
            }
            err() << "ndxcom show: no button \"" << wanted << "\"; the box has "
                  << texts.join(QStringLiteral(", ")) << Qt::endl;
            m_failed = true;
        }
        close(modal);
    }

    static void close(QWidget *modal)
    {
        if (auto *dialog = qobject_cast<QDialog *>(modal))
            dialog->reject();
        else
            modal->close();
    }

    QTimer m_timer;
    QString m_screenshot;
    QStringList m_clicks;
    QPointer<QWidget> m_current;
    int m_ticks = 0;
    int m_boxes = 0;
    bool m_failed = false;
    QStringList m_written;
};

QString resultText(int result)
{
    const QMetaEnum buttons = QMessageBox::staticMetaObject.enumerator(
        QMessageBox::staticMetaObject.indexOfEnumerator("StandardButton"));
    const char *key = result ? buttons.valueToKey(result) : nullptr;
    if (!key)
        return QString::number(result);
    return QStringLiteral("%1 (%2)").arg(result).arg(QLatin1String(key));
}

void printList()
{
    std::vector<const ShowFamily *> families;
    for (const ShowFamily &f : ShowFamily::all())
        families.push_back(&f);
    std::stable_sort(
        families.begin(), families.end(),
        [](const ShowFamily *a, const ShowFamily *b) { return qstrcmp(a->kind, b->kind) < 0; });
    for (const ShowFamily *f : families) {
        out() << QString::fromLatin1(f->kind).leftJustified(13) << ' '
              << QString::fromLatin1(f->name).leftJustified(21) << ' '
              << QString::fromUtf8(f->synopsis) << '\n';
    }
    out().flush();
}

void printHelp()
{
    out() << "usage: " << usage << "\n\n"
          << "Opens one of the library's dialogs for real and prints how many boxes it\n"
          << "showed and the result code the library returned. Families register\n"
          << "themselves; 'ndxcom show --list' names them with their arguments.\n\n"
          << "Options (anywhere after 'show'; '--' ends them):\n"
          << "  --screenshot FILE.png  render each box into FILE.png (FILE-2.png, ...)\n"
          << "                         and close it; works on the offscreen platform\n"
          << "  --click TEXT           answer the next box with the button TEXT\n"
          << "                         (repeat for several boxes)\n"
          << "  --language LANG        show the box in LANG: it (the source texts, the\n"
          << "                         default), en, zh, szh or es\n"
          << "  --list                 list the families\n\n"
          << "Values and numbers are decimal and may be negative. Texts are passed as\n"
          << "they are: use $'a\\nb' in the shell for a line break.\n\n"
          << "Example:\n"
          << "  QT_QPA_PLATFORM=offscreen ndxcom show advisor illegalname 1 x 8 \\\n"
          << "      --screenshot box.png" << Qt::endl;
}

bool toInt(const QString &text, int *value)
{
    bool ok = false;
    *value = text.toInt(&ok, 10);
    return ok;
}

int runShow(const QStringList &arguments)
{
    CommandParser parser("show");
    const QCommandLineOption helpOption(QStringList {QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption listOption(QStringLiteral("list"));
    const QCommandLineOption screenshotOption(QStringLiteral("screenshot"),
                                              QStringLiteral("Render each box."),
                                              QStringLiteral("FILE.png"));
    const QCommandLineOption languageOption(QStringLiteral("language"),
                                            QStringLiteral("Show the box in LANG."),
                                            QStringLiteral("LANG"));
    const QCommandLineOption clickOption(QStringLiteral("click"),
                                         QStringLiteral("Answer the next box with TEXT."),
                                         QStringLiteral("TEXT"));
    for (const QCommandLineOption &option :
         {helpOption, listOption, screenshotOption, languageOption, clickOption})
        parser.addOption(option);
    if (!parser.parse(arguments))
        return usageError("show", parser.errorText(), usageText());
    if (parser.isSet(helpOption)) {
        printHelp();
        return ExitOk;
    }
    if (parser.isSet(listOption)) {
        printList();
        return ExitOk;
    }
    if (parser.count(screenshotOption) > 1)
        return usageError("show", QStringLiteral("--screenshot needs one file name"), usageText());
    if (parser.count(languageOption) > 1)
        return usageError("show", QStringLiteral("--language needs one language"), usageText());
    const QString screenshot = parser.value(screenshotOption);
    const QString language = parser.value(languageOption);
    if (parser.isSet(languageOption) && !suiteLanguages().contains(language))
        return usageError("show",
                          QStringLiteral("unknown language '%1' (%2)")
                              .arg(language, suiteLanguages().join(QLatin1String(", "))),
                          usageText());
    const QStringList clicks = parser.values(clickOption);
    QStringList positional = parser.positionalArguments();
    if (positional.isEmpty())
        return usageError("show", QStringLiteral("what to show?"), usageText());

    const QString kind = positional.takeFirst();
    bool kindKnown = false;
    const ShowFamily *family = nullptr;
    for (const ShowFamily &f : ShowFamily::all()) {
        if (kind != QLatin1String(f.kind))
            continue;
        kindKnown = true;
        // A family without a name is the only one of its kind ("rule").
        if (!*f.name || (!positional.isEmpty() && positional.first() == QLatin1String(f.name))) {
            family = &f;
            break;
        }
    }
    if (!kindKnown)
        return usageError("show", QStringLiteral("unknown kind '%1' (see --list)").arg(kind),
                          usageText());
    if (!family) {
        return usageError(
            "show",
            positional.isEmpty()
                ? QStringLiteral("which %1? (see --list)").arg(kind)
                : QStringLiteral("unknown %1 '%2' (see --list)").arg(kind, positional.first()),
            usageText());
    }
    if (*family->name)
        positional.removeFirst();

    // Advisors and rules take a number first: the enumeration value or the
    // rule code.
    int value = 0;
    if (kind == QLatin1String("advisor") || !*family->name) {
        if (positional.isEmpty() || !toInt(positional.first(), &value))
            return usageError("show", QStringLiteral("%1 needs a whole number first").arg(kind),
                              usageText());
        positional.removeFirst();
    }

    if (!language.isEmpty() && !installLanguage(language)) {
        err() << "ndxcom show: no catalogue for '" << language << "' in "
              << translationFolders().join(QStringLiteral(", ")) << Qt::endl;
        return ExitFailure;
    }

    Autopilot autopilot(screenshot, clicks);
    const int result = family->run(value, positional);
    out() << "boxes = " << autopilot.boxes() << '\n' << "result = " << resultText(result) << '\n';
    for (const QString &path : autopilot.written())
        out() << "screenshot = " << path << '\n';
    out().flush();
    if (!screenshot.isEmpty() && autopilot.boxes() == 0) {
        err() << "ndxcom show: nothing was shown, no screenshot written" << Qt::endl;
        return ExitFailure;
    }
    return autopilot.failed() ? ExitFailure : ExitOk;
}

Command::Registrar registrar("show", "open one of the library's dialogs (--list names them)",
                             Command::Gui, runShow);

} // namespace

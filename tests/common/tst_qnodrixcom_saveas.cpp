// The save-as dialog of projects: its starting folder, the real file dialog,
// the file-name advisories between its runs and the same-name rule.
#include <QNodrixCom>
#include <QNodrixMessageBox>
#include <QNodrixRegistry>

#include "dialogdriver.h"
#include "ndxcomtest.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <memory>

using namespace NdxComTest;

namespace {

const QString kFilter = QStringLiteral("Nodrix progetti (*.ndx)");
const QString kCaption = QStringLiteral("Salva progetto con nome");

QString tooLongText(int max)
{
    return QStringLiteral(
               "Attenzione: Il nome dei progetti per la macchina\n NON deve essere più lungo di "
               "%1 caratteri")
        .arg(max);
}

QString invalidCharsText(const QString &chars)
{
    return QStringLiteral("Attenzione:\nIl nome dei progetti Veskar NON può contenere i seguenti "
                          "caratteri:\n\t %1")
        .arg(chars);
}

void setProjectsPath(const QString &path)
{
    QNodrixRegistry().setProjectsPath(path);
}

void touch(const QString &path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    QVERIFY2(f.open(QIODevice::WriteOnly), qPrintable(path));
}

struct SaveAs
{
    bool result = false;
    QString fileName;
    QList<BoxRecord> records;
    int unexpected = 0;
    bool cursorRestored = true;

    int fileDialogs() const
    {
        int n = 0;
        for (const BoxRecord &r : records)
            n += r.isFileDialog ? 1 : 0;
        return n;
    }
    int advisories(const QString &text) const
    {
        int n = 0;
        for (const BoxRecord &r : records)
            n += !r.isFileDialog && r.text == text ? 1 : 0;
        return n;
    }
};

SaveAs runSaveAs(const QString &incoming, bool allowSameName, const QList<Action> &actions,
                 QWidget *parent = nullptr, const QString &caption = kCaption)
{
    SaveAs run;
    run.fileName = incoming;
    DialogDriver driver;
    run.records = driver.run(
        [&] {
            run.result
                = QNodrixCom::getSaveAsFileName(parent, caption, run.fileName, allowSameName);
        },
        actions);
    run.unexpected = driver.unexpected();
    run.cursorRestored = driver.cursorRestored();
    return run;
}

// Actions written as text in the data rows: "type:<name>", "cancel",
// "close" (the advisory's "Chiudi") and "replace" (Qt's question before
// overwriting an existing file).
QList<Action> actionsFrom(const QStringList &steps)
{
    QList<Action> actions;
    for (const QString &step : steps) {
        if (step.startsWith(QLatin1String("type:")))
            actions << Action::typeFileName(step.mid(5));
        else if (step == QLatin1String("cancel"))
            actions << Action::cancel();
        else if (step == QLatin1String("close"))
            actions << Action::click(QStringLiteral("Chiudi"));
        else if (step == QLatin1String("replace"))
            actions << Action::click(QStringLiteral("&Yes"));
    }
    return actions;
}

QString clean(const QString &path)
{
    return QDir::cleanPath(QDir(path).absolutePath());
}

} // namespace

class tst_QNodrixCom_SaveAs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void startFolder_data();
    void startFolder();
    void noFolderMadeOutsideTheProjectsFolder_data();
    void noFolderMadeOutsideTheProjectsFolder();
    void dialogPresentation();
    void flow_data();
    void flow();
    void reopenedDialogStartsAgainInTheSameFolder();
    void advisoryLooks();

private:
    std::unique_ptr<QTemporaryDir> m_root;
};

void tst_QNodrixCom_SaveAs::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QVERIFY(m_root->isValid());
    QNodrixCom::setProjectsFolderOptions(0, 0);
    QNodrixCom::setProjectsNameOptions(0, QString());
    QNodrixCom::setMdiArea(nullptr);
    setProjectsPath(QString());
}

void tst_QNodrixCom_SaveAs::cleanup()
{
    QNodrixCom::setProjectsFolderOptions(0, 0);
    QNodrixCom::setProjectsNameOptions(0, QString());
    m_root.reset();
}

// Rows: the projects path and the folders and files made beforehand ("$ROOT"
// stands for the test's temporary folder), the folder options, the incoming
// file name, the folder the dialog must open in and the name it must offer.
void tst_QNodrixCom_SaveAs::startFolder_data()
{
    QTest::addColumn<QString>("projectsPath");
    QTest::addColumn<QStringList>("dirs");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<int>("gauge");
    QTest::addColumn<int>("diameter");
    QTest::addColumn<QString>("incoming");
    QTest::addColumn<QString>("expectedFolder");
    QTest::addColumn<QString>("expectedName");

    const QStringList none;
    const QString old = QStringLiteral("/elsewhere/Old.ndx");
    const QString oldName = QStringLiteral("Old.ndx");

    QTest::newRow("projects folder")
        << QStringLiteral("$ROOT/P") << QStringList {QStringLiteral("P")} << none << 0 << 0 << old
        << QStringLiteral("$ROOT/P") << oldName;
    QTest::newRow("backslashes read as slashes")
        << QStringLiteral("$ROOT\\P\\Q") << QStringList {QStringLiteral("P/Q")} << none << 0 << 0
        << old << QStringLiteral("$ROOT/P/Q") << oldName;
    QTest::newRow("gauge only: projects folder")
        << QStringLiteral("$ROOT/P") << QStringList {QStringLiteral("P")} << none << 14 << 0 << old
        << QStringLiteral("$ROOT/P") << oldName;
    QTest::newRow("diameter only: projects folder")
        << QStringLiteral("$ROOT/P") << QStringList {QStringLiteral("P")} << none << 0 << 13 << old
        << QStringLiteral("$ROOT/P") << oldName;
    // "C:" is no folder name on Windows.
#ifdef Q_OS_WIN
    const QString c = QStringLiteral("C");
#else
    const QString c = QStringLiteral("C:");
#endif
    QTest::newRow("folder ends in the gauge: diameter added and created")
        << QStringLiteral("$ROOT/%1/P/14-GG").arg(c)
        << QStringList {QStringLiteral("%1/P/14-GG").arg(c)} << none << 14 << 13 << old
        << QStringLiteral("$ROOT/%1/P/14-GG/13-DIAM").arg(c) << oldName;
    QTest::newRow("no gauge in the folder: both added and created")
        << QStringLiteral("$ROOT/P") << QStringList {QStringLiteral("P")} << none << 14 << 13 << old
        << QStringLiteral("$ROOT/P/14-GG/13-DIAM") << oldName;
    QTest::newRow("subfolder exists already")
        << QStringLiteral("$ROOT/P") << QStringList {QStringLiteral("P/14-GG/13-DIAM")} << none
        << 14 << 13 << old << QStringLiteral("$ROOT/P/14-GG/13-DIAM") << oldName;
    QTest::newRow("gauge and diameter in the folder: kept whole")
        << QStringLiteral("$ROOT/P/14-GG/13-DIAM/x")
        << QStringList {QStringLiteral("P/14-GG/13-DIAM/x")} << none << 14 << 13 << old
        << QStringLiteral("$ROOT/P/14-GG/13-DIAM/x") << oldName;
    QTest::newRow("diameter before gauge: kept whole")
        << QStringLiteral("$ROOT/13-DIAM/P/14-GG")
        << QStringList {QStringLiteral("13-DIAM/P/14-GG")} << none << 14 << 13 << old
        << QStringLiteral("$ROOT/13-DIAM/P/14-GG") << oldName;
    QTest::newRow("another diameter after the gauge is dropped")
        << QStringLiteral("$ROOT/P/14-GG/12-DIAM/old")
        << QStringList {QStringLiteral("P/14-GG/12-DIAM/old")} << none << 14 << 13 << old
        << QStringLiteral("$ROOT/P/14-GG/13-DIAM") << oldName;
    QTest::newRow("cut at the first gauge")
        << QStringLiteral("$ROOT/A/14-GG/B/14-GG")
        << QStringList {QStringLiteral("A/14-GG/B/14-GG")} << none << 14 << 13 << old
        << QStringLiteral("$ROOT/A/14-GG/13-DIAM") << oldName;
    QTest::newRow("gauge without its slash is not the gauge folder")
        << QStringLiteral("$ROOT/P14-GG") << QStringList {QStringLiteral("P14-GG")} << none << 14
        << 13 << old << QStringLiteral("$ROOT/P14-GG/14-GG/13-DIAM") << oldName;
    QTest::newRow("another gauge: both added")
        << QStringLiteral("$ROOT/P/12-GG") << QStringList {QStringLiteral("P/12-GG")} << none << 14
        << 13 << old << QStringLiteral("$ROOT/P/12-GG/14-GG/13-DIAM") << oldName;
    QTest::newRow("backslashes and the gauge")
        << QStringLiteral("$ROOT\\P\\14-GG\\9-DIAM")
        << QStringList {QStringLiteral("P/14-GG/9-DIAM")} << none << 14 << 13 << old
        << QStringLiteral("$ROOT/P/14-GG/13-DIAM") << oldName;
    QTest::newRow("subfolder cannot be created: projects folder")
        << QStringLiteral("$ROOT/P") << none << QStringList {QStringLiteral("P/14-GG")} << 14 << 13
        << old << QStringLiteral("$ROOT/P") << oldName;
    QTest::newRow("incoming name without a folder")
        << QStringLiteral("$ROOT/P") << QStringList {QStringLiteral("P")} << none << 0 << 0
        << QStringLiteral("Calza.ndx") << QStringLiteral("$ROOT/P") << QStringLiteral("Calza.ndx");
    QTest::newRow("no incoming name")
        << QStringLiteral("$ROOT/P") << QStringList {QStringLiteral("P")} << none << 0 << 0
        << QString() << QStringLiteral("$ROOT/P") << QString();
    QTest::newRow("existing project offered by name")
        << QStringLiteral("$ROOT/P") << none << QStringList {QStringLiteral("P/Old.ndx")} << 0 << 0
        << QStringLiteral("$ROOT/P/Old.ndx") << QStringLiteral("$ROOT/P") << oldName;
}

void tst_QNodrixCom_SaveAs::startFolder()
{
    QFETCH(QString, projectsPath);
    QFETCH(QStringList, dirs);
    QFETCH(QStringList, files);
    QFETCH(int, gauge);
    QFETCH(int, diameter);
    QFETCH(QString, incoming);
    QFETCH(QString, expectedFolder);
    QFETCH(QString, expectedName);

    const QString root = m_root->path();
    for (const QString &d : std::as_const(dirs))
        QVERIFY(QDir().mkpath(root + QLatin1Char('/') + d));
    for (const QString &f : std::as_const(files))
        touch(root + QLatin1Char('/') + f);
    setProjectsPath(projectsPath.replace(QStringLiteral("$ROOT"), root));
    QNodrixCom::setProjectsFolderOptions(gauge, diameter);
    incoming.replace(QStringLiteral("$ROOT"), root);
    expectedFolder.replace(QStringLiteral("$ROOT"), root);

    const SaveAs run = runSaveAs(incoming, false, {Action::cancel()});
    QCOMPARE(run.records.size(), 1);
    const BoxRecord &dialog = run.records.first();
    QVERIFY(dialog.isFileDialog);
    QCOMPARE(clean(dialog.directory), clean(expectedFolder));
    QVERIFY(QFileInfo(expectedFolder).isDir());
    QCOMPARE(dialog.fileNameText, expectedName);

    QCOMPARE(run.result, false);
    QVERIFY(run.fileName.isEmpty());
}

// Folders are made only under a projects folder the user really keeps, an
// existing absolute one. Unset, relative (to whatever the working folder
// is), missing, or named with control characters, it gets nothing made, and
// the dialog starts where it would without the folder options.
void tst_QNodrixCom_SaveAs::noFolderMadeOutsideTheProjectsFolder_data()
{
    QTest::addColumn<QString>("projectsPath");
    QTest::addColumn<QString>("made"); // what the options used to make
    QTest::newRow("unset") << QString() << QStringLiteral("/14-GG");
    // The worked example's folder, C:/P/14-GG, is relative on Linux.
#ifdef Q_OS_WIN
    QTest::newRow("relative") << QStringLiteral("P/14-GG") << QStringLiteral("P/14-GG");
#else
    QTest::newRow("relative") << QStringLiteral("C:/P/14-GG") << QStringLiteral("C:");
#endif
    QTest::newRow("missing") << QStringLiteral("$ROOT/new") << QStringLiteral("$ROOT/new");
#ifndef Q_OS_WIN
    QTest::newRow("control characters")
        << QStringLiteral("$ROOT/P\x1b[31m\n") << QStringLiteral("$ROOT/P\x1b[31m\n");
#endif
}

void tst_QNodrixCom_SaveAs::noFolderMadeOutsideTheProjectsFolder()
{
    QFETCH(QString, projectsPath);
    QFETCH(QString, made);
    const QString root = m_root->path();
    projectsPath.replace(QStringLiteral("$ROOT"), root);
    made.replace(QStringLiteral("$ROOT"), root);
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(root));
    setProjectsPath(projectsPath);

    QNodrixCom::setProjectsFolderOptions(0, 0);
    const SaveAs plain = runSaveAs(QStringLiteral("Calza.ndx"), false, {Action::cancel()});
    QNodrixCom::setProjectsFolderOptions(14, 13);
    const SaveAs run = runSaveAs(QStringLiteral("Calza.ndx"), false, {Action::cancel()});
    QVERIFY(QDir::setCurrent(previous));

    QCOMPARE(run.records.size(), 1);
    QCOMPARE(plain.records.size(), 1);
    QCOMPARE(clean(run.records.first().directory), clean(plain.records.first().directory));
    QCOMPARE(run.records.first().fileNameText, QStringLiteral("Calza.ndx"));
    QVERIFY2(!QFileInfo::exists(QDir(root).absoluteFilePath(made)), qPrintable(made));
    QCOMPARE(QDir(root).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void tst_QNodrixCom_SaveAs::dialogPresentation()
{
    // Qt's own save dialog with the projects filter and the "ndx" suffix,
    // the caller's parent and caption; no override cursor of ours around it.
    setProjectsPath(m_root->path());
    QWidget parent;
    SaveAs run = runSaveAs(QString(), false, {Action::cancel()}, &parent,
                           QStringLiteral("Salva con nome"));
    QCOMPARE(run.records.size(), 1);
    BoxRecord dialog = run.records.first();
    QVERIFY(dialog.isFileDialog);
    QCOMPARE(dialog.className, QStringLiteral("QFileDialog"));
    QCOMPARE(dialog.title, QStringLiteral("Salva con nome"));
    QCOMPARE(dialog.nameFilters, QStringList {kFilter});
    QCOMPARE(dialog.selectedNameFilter, kFilter);
    QCOMPARE(dialog.defaultSuffix, QStringLiteral("ndx"));
    QCOMPARE(dialog.acceptMode, QFileDialog::AcceptSave);
    QVERIFY(!dialog.options.testFlag(QFileDialog::DontConfirmOverwrite));
    QVERIFY(dialog.hasParent);
    QVERIFY(!dialog.hasOverrideCursor);
    QVERIFY(run.cursorRestored);
    QCOMPARE(run.unexpected, 0);

    run = runSaveAs(QString(), false, {Action::cancel()}, nullptr);
    QCOMPARE(run.records.size(), 1);
    QVERIFY(!run.records.first().hasParent);
    QCOMPARE(run.records.first().title, kCaption);
}

// Rows: the machine's name options, the same-name flag, the incoming name
// ("$DIR" stands for the folder the dialog opens in), a project that already
// exists there (or none), the actions, then the expected result and name and
// the boxes in the order they appear: "file" for the save dialog, "long" and
// "chars" for the two advisories, "replace" for Qt's overwrite question.
void tst_QNodrixCom_SaveAs::flow_data()
{
    QTest::addColumn<int>("maxChars");
    QTest::addColumn<QString>("invalidChars");
    QTest::addColumn<bool>("allowSame");
    QTest::addColumn<QString>("incoming");
    QTest::addColumn<QString>("existing");
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<bool>("expectedResult");
    QTest::addColumn<QString>("expectedName");
    QTest::addColumn<QStringList>("expectedBoxes");

    const QString none;
    const QString old = QStringLiteral("$DIR/Old.ndx");
    auto list = [](std::initializer_list<const char *> items) {
        QStringList l;
        for (const char *i : items)
            l << QString::fromUtf8(i);
        return l;
    };

    QTest::newRow("cancel") << 0 << none << false << old << none << list({"cancel"}) << false
                            << QString() << list({"file"});
    QTest::newRow("typed without extension gets .ndx")
        << 0 << none << false << old << none << list({"type:Calza"}) << true
        << QStringLiteral("$DIR/Calza.ndx") << list({"file"});
    QTest::newRow("typed with extension")
        << 0 << none << false << old << none << list({"type:Calza.ndx"}) << true
        << QStringLiteral("$DIR/Calza.ndx") << list({"file"});
    QTest::newRow("another extension is kept")
        << 0 << none << false << old << none << list({"type:Calza.NDX"}) << true
        << QStringLiteral("$DIR/Calza.NDX") << list({"file"});
    QTest::newRow("no limit, long name")
        << 0 << none << false << old << none << list({"type:UnNomeDavveroMoltoLungo"}) << true
        << QStringLiteral("$DIR/UnNomeDavveroMoltoLungo.ndx") << list({"file"});
    QTest::newRow("max 8, 13 characters: advisory and dialog again")
        << 8 << none << false << old << none
        << list({"type:Calzino12.ndx", "close", "type:Cal.ndx"}) << true
        << QStringLiteral("$DIR/Cal.ndx") << list({"file", "long", "file"});
    QTest::newRow("max 8, typed Calza is measured as Calza.ndx")
        << 8 << none << false << old << none << list({"type:Calza", "close", "cancel"}) << false
        << QString() << list({"file", "long", "file"});
    QTest::newRow("max 8, exactly 8 characters")
        << 8 << none << false << old << none << list({"type:Calz"}) << true
        << QStringLiteral("$DIR/Calz.ndx") << list({"file"});
    QTest::newRow("max 9, Calza fits")
        << 9 << none << false << old << none << list({"type:Calza"}) << true
        << QStringLiteral("$DIR/Calza.ndx") << list({"file"});
    QTest::newRow("too long twice")
        << 8 << none << false << old << none
        << list({"type:Calzino12", "close", "type:Calzino", "close", "type:C"}) << true
        << QStringLiteral("$DIR/C.ndx") << list({"file", "long", "file", "long", "file"});
    QTest::newRow("negative maximum refuses every name")
        << -1 << none << false << old << none << list({"type:A", "close", "cancel"}) << false
        << QString() << list({"file", "long", "file"});
    QTest::newRow("two forbidden characters, both in the name: two advisories, accepted")
        << 0 << QStringLiteral("#&") << false << old << none
        << list({"type:Cal#za&1", "close", "close"}) << true << QStringLiteral("$DIR/Cal#za&1.ndx")
        << list({"file", "chars", "chars"});
    QTest::newRow("one of two forbidden characters, twice in the name: one advisory")
        << 0 << QStringLiteral("#&") << false << old << none << list({"type:C#a#l", "close"})
        << true << QStringLiteral("$DIR/C#a#l.ndx") << list({"file", "chars"});
    QTest::newRow("forbidden characters compared case-sensitively")
        << 0 << QStringLiteral("Xy") << false << old << none << list({"type:xY"}) << true
        << QStringLiteral("$DIR/xY.ndx") << list({"file"});
    QTest::newRow("a character listed twice warns twice")
        << 0 << QStringLiteral("##") << false << old << none << list({"type:C#", "close", "close"})
        << true << QStringLiteral("$DIR/C#.ndx") << list({"file", "chars", "chars"});
    QTest::newRow("forbidden characters of the folder do not count")
        << 0 << QStringLiteral("-") << false << old << none << list({"type:Calza"}) << true
        << QStringLiteral("$DIR/Calza.ndx") << list({"file"});
    QTest::newRow("too long comes first, no character advisory")
        << 8 << QStringLiteral("#") << false << old << none
        << list({"type:Calzino#12", "close", "cancel"}) << false << QString()
        << list({"file", "long", "file"});
    QTest::newRow("same name refused silently")
        << 0 << none << false << old << none << list({"type:Old", "type:New"}) << true
        << QStringLiteral("$DIR/New.ndx") << list({"file", "file"});
    QTest::newRow("same name allowed")
        << 0 << none << true << old << none << list({"type:Old"}) << true << old << list({"file"});
    QTest::newRow("same name differing in case is another name")
        << 0 << none << false << old << none << list({"type:old.ndx"}) << true
        << QStringLiteral("$DIR/old.ndx") << list({"file"});
    QTest::newRow("same name with forbidden characters: advisory, then dialog again")
        << 0 << QStringLiteral("#") << false << QStringLiteral("$DIR/O#d.ndx") << none
        << list({"type:O#d", "close", "cancel"}) << false << QString()
        << list({"file", "chars", "file"});
    QTest::newRow("existing file: Qt asks before replacing")
        << 0 << none << false << old << QStringLiteral("Calza.ndx")
        << list({"type:Calza", "replace"}) << true << QStringLiteral("$DIR/Calza.ndx")
        << list({"file", "replace"});
    QTest::newRow("existing same name, allowed")
        << 0 << none << true << old << QStringLiteral("Old.ndx")
        << list({"type:Old.ndx", "replace"}) << true << old << list({"file", "replace"});
    QTest::newRow("existing same name, refused after replacing")
        << 0 << none << false << old << QStringLiteral("Old.ndx")
        << list({"type:Old.ndx", "replace", "cancel"}) << false << QString()
        << list({"file", "replace", "file"});
    QTest::newRow("incoming name elsewhere is not the same name")
        << 0 << none << false << QStringLiteral("/elsewhere/Old.ndx") << none << list({"type:Old"})
        << true << QStringLiteral("$DIR/Old.ndx") << list({"file"});
}

void tst_QNodrixCom_SaveAs::flow()
{
    QFETCH(int, maxChars);
    QFETCH(QString, invalidChars);
    QFETCH(bool, allowSame);
    QFETCH(QString, incoming);
    QFETCH(QString, existing);
    QFETCH(QStringList, steps);
    QFETCH(bool, expectedResult);
    QFETCH(QString, expectedName);
    QFETCH(QStringList, expectedBoxes);

    const QString dir = QDir(m_root->path()).canonicalPath() + QStringLiteral("/P");
    QVERIFY(QDir().mkpath(dir));
    if (!existing.isEmpty())
        touch(dir + QLatin1Char('/') + existing);
    setProjectsPath(dir);
    QNodrixCom::setProjectsNameOptions(maxChars, invalidChars);
    incoming.replace(QStringLiteral("$DIR"), dir);
    expectedName.replace(QStringLiteral("$DIR"), dir);

    const SaveAs run = runSaveAs(incoming, allowSame, actionsFrom(steps));

    QStringList boxes;
    for (const BoxRecord &r : run.records) {
        if (r.isFileDialog) {
            boxes << QStringLiteral("file");
            QCOMPARE(clean(r.directory), clean(dir));
            QCOMPARE(r.fileNameText, QNodrixCom::strippedName(incoming));
            QVERIFY(!r.hasOverrideCursor);
        } else if (r.text == tooLongText(maxChars)) {
            boxes << QStringLiteral("long");
        } else if (r.text == invalidCharsText(invalidChars)) {
            boxes << QStringLiteral("chars");
        } else if (r.className == QLatin1String("QMessageBox")
                   && r.text.contains(QLatin1String("already exists"))) {
            boxes << QStringLiteral("replace");
        } else {
            boxes << QStringLiteral("other: %1 %2").arg(r.className, r.text);
        }
        QVERIFY2(!r.actionFailed, qPrintable(r.className));
    }
    QCOMPARE(boxes, expectedBoxes);
    QCOMPARE(run.unexpected, 0);
    QCOMPARE(run.result, expectedResult);
    QCOMPARE(run.fileName, expectedName);
    QVERIFY(run.cursorRestored);
}

void tst_QNodrixCom_SaveAs::reopenedDialogStartsAgainInTheSameFolder()
{
    // After a refusal the dialog opens where it first did, offering the
    // incoming name again, even if the user had moved elsewhere.
    const QString root = QDir(m_root->path()).canonicalPath();
    QVERIFY(QDir().mkpath(root + QStringLiteral("/other")));
    QVERIFY(QDir().mkpath(root + QStringLiteral("/P")));
    setProjectsPath(root + QStringLiteral("/P/"));
    QNodrixCom::setProjectsFolderOptions(7, 30);
    QNodrixCom::setProjectsNameOptions(5, QString());
    const SaveAs run = runSaveAs(QStringLiteral("x/Abc.ndx"), false,
                                 {Action::typeFileName(root + QStringLiteral("/other/Lungo")),
                                  Action::click(QStringLiteral("Chiudi")),
                                  Action::typeFileName(QStringLiteral("A"))});
    QCOMPARE(run.fileDialogs(), 2);
    QCOMPARE(run.advisories(tooLongText(5)), 1);
    const QString start = clean(root + QStringLiteral("/P/7-GG/30-DIAM"));
    QCOMPARE(clean(run.records.at(0).directory), start);
    QCOMPARE(clean(run.records.at(2).directory), start);
    QCOMPARE(run.records.at(2).fileNameText, QStringLiteral("Abc.ndx"));
    QVERIFY(run.result);
    QCOMPARE(clean(run.fileName), start + QStringLiteral("/A.ndx"));
}

void tst_QNodrixCom_SaveAs::advisoryLooks()
{
    // The two advisories as the user sees them between the dialogs.
    const QString dir = QDir(m_root->path()).canonicalPath();
    setProjectsPath(dir);
    QNodrixCom::setProjectsNameOptions(3, QString());
    SaveAs run = runSaveAs(QString(), false,
                           {Action::typeFileName(QStringLiteral("Abcd")),
                            Action::click(QStringLiteral("Chiudi")), Action::cancel()});
    QCOMPARE(run.records.size(), 3);
    BoxRecord box = run.records.at(1);
    QCOMPARE(box.text, tooLongText(3));
    QCOMPARE(box.title, QStringLiteral("Nodrix"));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttonTexts(), QStringList {QStringLiteral("Chiudi")});
    QVERIFY(box.hasOverrideCursor);
    QCOMPARE(box.overrideCursor, Qt::PointingHandCursor);
    QVERIFY(run.cursorRestored);

    QNodrixCom::setProjectsNameOptions(0, QStringLiteral("@ "));
    run = runSaveAs(
        QString(), false,
        {Action::typeFileName(QStringLiteral("a b")), Action::click(QStringLiteral("Chiudi"))});
    QCOMPARE(run.records.size(), 2);
    box = run.records.at(1);
    QCOMPARE(box.text, invalidCharsText(QStringLiteral("@ ")));
    QCOMPARE(box.title, QStringLiteral("Nodrix"));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttonTexts(), QStringList {QStringLiteral("Chiudi")});
    QCOMPARE(box.overrideCursor, Qt::PointingHandCursor);
    QVERIFY(run.result);
    QCOMPARE(run.fileName, dir + QStringLiteral("/a b.ndx"));
    QVERIFY(run.cursorRestored);
}

NDXCOM_TEST_MAIN(tst_QNodrixCom_SaveAs)
#include "tst_qnodrixcom_saveas.moc"

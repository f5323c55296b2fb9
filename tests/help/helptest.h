#ifndef HELPTEST_H
#define HELPTEST_H

// The machine folder of the QNodrixHelp programs: machine M1 with its help
// index, in a folder of the test's own, and the documents the help would
// open caught instead of opened.

#include <QNodrixRegistry>

#include "urlcatcher.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtGui/QDesktopServices>
#include <QtTest/QtTest>

// The state of a test class: its initTestCase() calls setUpProcess(), its
// init() setUpMachine() and its cleanupTestCase() tearDownProcess().
class HelpFixture
{
protected:
    void setUpProcess()
    {
        QVERIFY(m_machine.isValid());
        QDesktopServices::setUrlHandler(QStringLiteral("file"), &m_catcher, "open");
    }

    void tearDownProcess() { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    // No settings, nothing opened, and machine M1 in Italian with an index of
    // two topics.
    void setUpMachine()
    {
        QSettings().clear();
        m_catcher.urls.clear();
        setMachine(m_machine.path(), 0);
        writeIndex(QStringLiteral("Maglia=maglia.htm\nComandi=cmd/comandi.htm\n"));
    }

    static void setMachine(const QString &path, int language)
    {
        QNodrixRegistry registry(nullptr);
        registry.setLastMachine(QStringLiteral("M1"));
        registry.setMachinePath(path);
        registry.setLanguage(QNodrixRegistry::eLanguageType(language));
    }

    void writeIndex(const QString &content)
    {
        QDir().mkpath(m_machine.path() + QStringLiteral("/help"));
        QFile file(m_machine.path() + QStringLiteral("/help/HelpMac.ini"));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content.toUtf8());
    }

    QTemporaryDir m_machine;
    UrlCatcher m_catcher;
};

#endif // HELPTEST_H

#ifndef NDXCOMTEST_H
#define NDXCOMTEST_H

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

QT_BEGIN_NAMESPACE
class QObject;
class QRegularExpression;
QT_END_NAMESPACE

namespace NdxComTest {

// Prepares the process before QApplication exists: offscreen platform, no
// platform theme (a theme could open a native dialog nobody closes), and
// HOME and the XDG folders pointed into a private temporary folder.
void prepareEnvironment();

// Called once the application object exists: widget dialogs only, and the
// user and system settings scopes redirected into a private temporary folder,
// so no test ever reads or writes the real home or /etc. On Windows, where
// the native store is the registry, the organization name is made unique to
// the process instead and its keys are removed at exit.
void isolateApplication(const char *organization, const char *application);

// The temporary folder that holds the redirected settings of this process.
QString settingsRoot();

// Runs the test object as QTest::qExec() does. With Qt 6.3 or later every
// warning a test function gets fails it, unless the function declared it
// beforehand with QTest::ignoreMessage(); a warning is a defect until a test
// says it is expected.
int exec(QObject *testObject, int argc, char *argv[]);

// While it lives, every warning that matches `pattern` is expected: each is
// declared with QTest::ignoreMessage() as it comes, however many come (none
// included). For hostile inputs on which Qt warns a number of times that
// depends on the input; a warning that comes a known number of times is
// declared with QTest::ignoreMessage() itself. With Qt before 6.3, where
// warnings do not fail, it does nothing.
class ExpectedWarnings
{
public:
    explicit ExpectedWarnings(const QRegularExpression &pattern);
    ~ExpectedWarnings();
    ExpectedWarnings(const ExpectedWarnings &) = delete;
    ExpectedWarnings &operator=(const ExpectedWarnings &) = delete;

private:
    int m_id;
};

// Writes bytes into a file, making its folder first; true when all of them
// were written.
bool writeFile(const QString &path, const QByteArray &bytes);

#ifdef Q_OS_WIN
// The organization name this process took (see isolateApplication): every
// registry key under Software whose name starts with it is removed when the
// process ends.
QString uniqueOrganizationPrefix();
#endif

} // namespace NdxComTest

// QTEST_MAIN with the isolation and the strictness above.
#define NDXCOM_TEST_MAIN(TestObject)                                                               \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        NdxComTest::prepareEnvironment();                                                          \
        QApplication app(argc, argv);                                                              \
        NdxComTest::isolateApplication("NdxComTests", #TestObject);                                \
        TestObject tc;                                                                             \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return NdxComTest::exec(&tc, argc, argv);                                                  \
    }

#endif // NDXCOMTEST_H

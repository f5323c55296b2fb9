#ifndef NDXCOMTEST_H
#define NDXCOMTEST_H

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

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

#ifdef Q_OS_WIN
// The organization name this process took (see isolateApplication): every
// registry key under Software whose name starts with it is removed when the
// process ends.
QString uniqueOrganizationPrefix();
#endif

} // namespace NdxComTest

// QTEST_MAIN with the isolation above.
#define NDXCOM_TEST_MAIN(TestObject)                                                               \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        NdxComTest::prepareEnvironment();                                                          \
        QApplication app(argc, argv);                                                              \
        NdxComTest::isolateApplication("NdxComTests", #TestObject);                                \
        TestObject tc;                                                                             \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&tc, argc, argv);                                                      \
    }

#endif // NDXCOMTEST_H

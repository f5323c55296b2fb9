// Identity of this process on Windows, and the hidden lock file.

#include "qfilesharing_p.h"

#ifdef Q_OS_WIN

#include <QtCore/QDir>

#include <vector>

#include <qt_windows.h>

namespace QFileSharingPrivate {

QString localComputerName()
{
    // First without a buffer to learn the size, then into one of that size.
    DWORD size = 0;
    GetComputerNameExW(ComputerNameNetBIOS, nullptr, &size);
    if (size == 0)
        return QString();
    std::vector<wchar_t> name(size + 1, L'\0');
    if (!GetComputerNameExW(ComputerNameNetBIOS, name.data(), &size))
        return QString();
    return QString::fromWCharArray(name.data(), int(size));
}

QString localUserName()
{
    // A 512-character buffer; a longer name does not fit and gives an empty
    // user name, as on every other platform.
    wchar_t name[UserNameCapacity + 1] = {};
    DWORD size = UserNameCapacity + 1;
    if (!GetUserNameW(name, &size) || size == 0)
        return QString();
    return fitUserName(QString::fromWCharArray(name, int(size) - 1));
}

void hideLockFile(const QString &lockName)
{
    const QString native = QDir::toNativeSeparators(lockName);
    SetFileAttributesW(reinterpret_cast<const wchar_t *>(native.utf16()), FILE_ATTRIBUTE_HIDDEN);
}

} // namespace QFileSharingPrivate

#endif // Q_OS_WIN

#ifndef LOCKHOLDERCLIENT_H
#define LOCKHOLDERCLIENT_H

// The test side of the lockholder program (see lockholder.cpp): starts one
// "workstation" process and drives it line by line. LOCKHOLDER is the
// program's path, defined by the test's CMake target.

#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>

#ifdef Q_OS_WIN
#include <chrono>
#else
#include <ctime>
#endif

namespace LockTest {

// The clock lockholder waits on for a deadline.
inline qint64 monotonicNs()
{
#ifdef Q_OS_WIN
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
#else
    timespec t;
    clock_gettime(CLOCK_MONOTONIC, &t);
    return qint64(t.tv_sec) * 1000000000 + t.tv_nsec;
#endif
}

// One lockholder process, driven line by line.
class Holder
{
public:
    ~Holder()
    {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.write("quit\n");
            m_process.closeWriteChannel();
            if (!m_process.waitForFinished(5000)) {
                m_process.kill();
                m_process.waitForFinished(5000);
            }
        }
    }

    // Starts the process; returns its first line ("ready <host> <pid>" or an
    // error), empty when it did not answer.
    QString start(const QString &hostName = QString())
    {
        QStringList arguments;
        if (!hostName.isEmpty())
            arguments << QStringLiteral("--hostname") << hostName;
        m_process.setProcessChannelMode(QProcess::SeparateChannels);
        m_process.setReadChannel(QProcess::StandardOutput);
        m_process.start(QStringLiteral(LOCKHOLDER), arguments);
        if (!m_process.waitForStarted(20000))
            return QString();
        const QString first = readLine();
        if (first.startsWith(QLatin1String("ready ")))
            pid = first.section(QLatin1Char(' '), 2, 2).toLongLong();
        return first;
    }

    // Ends the process with "quit"; returns its exit code (-1 when it had to
    // be killed). Under the sanitizers a finding makes the code non-zero.
    int finish()
    {
        m_process.write("quit\n");
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(20000)) {
            m_process.kill();
            m_process.waitForFinished(5000);
            return -1;
        }
        const QByteArray errors = m_process.readAllStandardError();
        if (!errors.isEmpty())
            qWarning("lockholder: %s", errors.constData());
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }

    void send(const QString &command)
    {
        m_process.write(command.toLocal8Bit() + '\n');
        m_process.waitForBytesWritten(5000);
    }

    QString readLine(int timeoutMs = 30000)
    {
        QElapsedTimer timer;
        timer.start();
        while (!m_process.canReadLine()) {
            const int left = int(timeoutMs - timer.elapsed());
            if (left <= 0 || !m_process.waitForReadyRead(left)) {
                if (!m_process.canReadLine())
                    return m_process.state() == QProcess::NotRunning
                        ? QStringLiteral("<exited: %1>")
                              .arg(QString::fromLocal8Bit(m_process.readAllStandardError()))
                        : QStringLiteral("<timeout>");
            }
        }
        return QString::fromLocal8Bit(m_process.readLine()).trimmed();
    }

    QString ask(const QString &command)
    {
        send(command);
        return readLine();
    }

    qint64 pid = 0;

private:
    QProcess m_process;
};

} // namespace LockTest

#endif // LOCKHOLDERCLIENT_H

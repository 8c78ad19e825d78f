// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/instancelink.h"

#include "app/startup.h"
#include "storage/log.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>
#include <QThread>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int waitMilliseconds = 200;
constexpr int answerMilliseconds = 3000;

/// One name for each folder, whatever way leads to it.
QString nameFor(const DataFolder &folder)
{
    const QDir directory(folder.path());
    const QString canonical = directory.canonicalPath();
    const QString path = canonical.isEmpty() ? directory.absolutePath() : canonical;
    const QByteArray hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256);
    return u"quillery-"_s + QString::fromLatin1(hash.toHex().left(24));
}

} // namespace

InstanceLink::InstanceLink(const DataFolder &folder, QObject *parent)
    : QObject(parent)
    , m_name(nameFor(folder))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *call = m_server.nextPendingConnection()) {
            connect(call, &QLocalSocket::disconnected, call, &QObject::deleteLater);
            call->disconnectFromServer();
            emit called();
        }
    });
}

bool InstanceLink::listen()
{
    if (m_server.listen(m_name))
        return true;
    QLocalServer::removeServer(m_name);
    if (m_server.listen(m_name))
        return true;
    qCWarning(storageLog) << "no line for a second start:" << m_server.errorString();
    return false;
}

InstanceLink::Reply InstanceLink::callOther(int attempts) const
{
    Startup::letOtherComeToFront();
    for (int attempt = 0; attempt < attempts; ++attempt) {
        QLocalSocket call;
        call.connectToServer(m_name);
        // A line is there before anybody answers: only that it is hung up again tells of a program that
        // lives.
        if (call.waitForConnected(waitMilliseconds)) {
            const bool isAnswered = call.state() == QLocalSocket::UnconnectedState ||
                                    call.waitForDisconnected(answerMilliseconds);
            return isAnswered ? Reply::Answer : Reply::Silence;
        }
        if (attempt + 1 < attempts)
            QThread::msleep(waitMilliseconds);
    }
    return Reply::Nobody;
}

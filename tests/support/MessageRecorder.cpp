#include "MessageRecorder.h"

#include <QtGlobal>

#include <utility>

namespace {

QtMessageHandler s_previousHandler = nullptr;

QStringList& recorded()
{
    static QStringList sMessages;
    return sMessages;
}

void record(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    recorded().append(message);
    if (type == QtFatalMsg)
        s_previousHandler(type, context, message);
}

} // namespace

MessageRecorder::MessageRecorder()
{
    recorded().clear();
    s_previousHandler = qInstallMessageHandler(record);
}

MessageRecorder::~MessageRecorder()
{
    qInstallMessageHandler(s_previousHandler);
}

QStringList MessageRecorder::messages() const
{
    return recorded();
}

QStringList MessageRecorder::take()
{
    return std::exchange(recorded(), {});
}

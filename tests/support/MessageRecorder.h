#pragma once

#include <QStringList>

#include <utility>

/// Collects what is written to Qt's loggers while it lives, instead of printing it. One at a time.
class MessageRecorder
{
public:
    MessageRecorder()
    {
        s_recorded.clear();
        s_previousHandler = qInstallMessageHandler(record);
    }

    ~MessageRecorder() { qInstallMessageHandler(s_previousHandler); }

    Q_DISABLE_COPY(MessageRecorder)

    /// The messages since it was asked last, in order.
    QStringList take() const { return std::exchange(s_recorded, {}); }

private:
    static void record(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        s_recorded.append(message);
        if (type == QtFatalMsg)
            s_previousHandler(type, context, message);
    }

    inline static QStringList s_recorded;
    inline static QtMessageHandler s_previousHandler = nullptr;
};

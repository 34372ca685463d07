#pragma once

#include <QStringList>

/// Collects what is written to Qt's loggers while it lives, instead of printing it. One at a time.
class MessageRecorder
{
public:
    MessageRecorder();
    ~MessageRecorder();
    Q_DISABLE_COPY(MessageRecorder)

    /// All messages so far, in order.
    QStringList messages() const;

    /// The messages so far, which are forgotten then.
    QStringList take();
};

#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// A theme repository in a directory of its own, which is removed with this object.
class TemporaryRepository
{
public:
    QString path() const { return m_directory.path(); }

    /// The path of `name` below the repository.
    QString path(const QString& name) const { return m_directory.filePath(name); }

    /// Writes a file below the repository, making the directories on the way.
    void write(const QString& name, const QByteArray& content) const;

    /// Makes a pipe, which nobody writes to, below the repository.
    void makePipe(const QString& name) const;

    /// Adds the theme directory `name`, whose theme.xml names the theme `title`. It has a small
    /// configuration and palette mapping: "MainColor" is `mainColor`, "BackgroundBrush" and the
    /// Window role are #102030, "ForegroundBrush" and WindowText are #ffffff. Returns its path.
    QString addTheme(const QString& name, const QByteArray& title,
                     const QByteArray& mainColor = "#ff0000") const;

private:
    QTemporaryDir m_directory;
};

/// An SVG drawing of 16 by 16: a square of `color`.
QByteArray svgSquare(const QByteArray& color);

#pragma once

#include <QAction>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <deque>
#include <functional>

/// Leads the program that it is part of through its menus, dialogs and sizes, takes a picture of
/// what is on top at each station, and ends the program.
class Tour : public QObject
{
public:
    explicit Tour(const QString& pictures);

private:
    using Step = std::function<void()>;

    void start();
    void plan();
    void advance();
    /// Has `step` done, and what is then seen pictured.
    void visit(const QString& name, const Step& step);
    void reach(const QString& name, const QPointer<QAction>& action, int patience);
    void visitByKeys(const QString& name);
    void visitMenus();
    void visitDialog(const QString& name, QAction* action);
    void visitPages(const QString& name);
    void picture(const QString& name) const;

    const QString m_pictures;
    QTimer m_timer;
    QPointer<QWidget> m_window;
    std::deque<Step> m_steps;
    int m_patience;
};

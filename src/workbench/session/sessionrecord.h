#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

namespace Workbench
{

// A tab of the window. Of what it shows only the path is kept.
struct SessionTab {
    enum Kind { File, HandOff, Simulation, Results };

    Kind kind = File;
    QString path; // full; of an .ipc file for pages of an IP; empty for Results
    // In a File, from 1: the cursor's line and column, and the line at the top.
    int line = 1;
    int column = 1;
    int top = 1;
    int left = 0; // scrolled sideways, in pixels

    bool operator==(const SessionTab &other) const
    {
        return kind == other.kind && path == other.path && line == other.line &&
               column == other.column && top == other.top && left == other.left;
    }
};

// What a window shows of a project.
struct SessionRecord {
    static constexpr int tabLimit = 200;
    static constexpr int sizeLimit = 1 << 18; // characters of its text

    QVector<SessionTab> tabs;
    int current = -1; // in tabs; -1: none
    // Whether messages of the last run are to be seen, besides what is in a tab.
    bool hasRun = false;

    bool operator==(const SessionRecord &other) const
    {
        return tabs == other.tabs && current == other.current && hasRun == other.hasRun;
    }

    // One line of JSON; tabs above the limit are left out.
    QString toText() const;
    // Takes what makes sense: a tab without a sound path is left out, a place outside of the file
    // is for whoever opens it to bound. Nothing for a text that is no record.
    static std::optional<SessionRecord> fromText(const QString &text);
};

} // namespace Workbench

#pragma once

#include <QFont>
#include <QQuickItem>
#include <QTextLayout>

/// What stands in the last line of a `Text` item as it is shown.
inline QString lastLine(const QQuickItem &item)
{
    const auto number = [&](const char *property) { return item.property(property).toReal(); };
    QTextLayout layout(item.property("text").toString(), item.property("font").value<QFont>());
    QTextOption option(Qt::AlignLeft);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    QString last;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(item.width() - number("leftPadding") - number("rightPadding"));
        last = layout.text().mid(line.textStart(), line.textLength());
    }
    layout.endLayout();
    return last.trimmed();
}

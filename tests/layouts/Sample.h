#pragma once

#include "SavedLayout.h"

/// Layouts and texts several tests use.
namespace Sample {

/// Where a store keeps the layouts.
inline const QString key = QStringLiteral("layouts.saved");

inline const QUuid id = QUuid(QStringLiteral("{3f2504e0-4f89-41d3-9a0c-0305e82c3301}"));
inline const QUuid otherId = QUuid(QStringLiteral("{6ba7b810-9dad-11d1-80b4-00c04fd430c8}"));

inline SavedLayout::Window window()
{
    return {QStringLiteral("org.example.editor"), QStringLiteral("Editor"), QStringLiteral("Notes"),
            UnitRect{0, 0.25, 0.5, 0.75}, QStringLiteral("main")};
}

inline SavedLayout layout()
{
    return {id, QStringLiteral("Work"), {window()}, 700000000.5};
}

/// What layout() alone is stored as.
inline const QString text = QStringLiteral(
    R"([{"created":700000000.5,"id":"3F2504E0-4F89-41D3-9A0C-0305E82C3301","name":"Work","windows":[)"
    R"({"app":"Editor","bundleID":"org.example.editor","display":"main","rect":{"h":0.75,"w":0.5,"x":0,"y":0.25},"title":"Notes"}]}])");

}

#pragma once

#include "EBApp.h"

#include <QStringList>

#include <variant>

/// What the command line asks of the gallery.
struct GalleryOptions {
    enum class Action { browse, list, render, show, help };

    Action action = Action::browse;
    /// The scene to draw or to show; one of the table.
    QString scene;
    QString file;
    bool dark = false;
    bool highContrast = false;
    EBApp app = EBApp::corvane;
    /// Device pixels a point.
    qreal scale = 1;
    /// Stands in for the desktop's general font; empty: that font.
    QString font;
    /// The code of the language of the texts; empty for English.
    QString language;

    /// The options, or what is wrong with them in a sentence. The first of `arguments` is the program.
    static std::variant<GalleryOptions, QString> parse(const QStringList &arguments);

    /// What `--help` prints. Needs an application object.
    static QString helpText();
};

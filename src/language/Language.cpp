#include "Language.h"

#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace {

QString fileOf(const QString &code)
{
    return QStringLiteral(":/languages/") + code + QStringLiteral(".qm");
}

/// The language, with its script where that is not the usual one: "zh" or "zh_Hant".
QString codeOf(const QLocale &locale)
{
    const QString language = QLocale::languageToCode(locale.language());
    const bool isUsualScript = QLocale(locale.language()).script() == locale.script();
    return isUsualScript ? language : language + u'_' + QLocale::scriptToCode(locale.script());
}

}

QString Language::chosen(const QStringList &wished)
{
    for (const QString &name : wished) {
        const QLocale locale(name);
        if (locale.language() == QLocale::English)
            return {};
        const QString code = codeOf(locale);
        if (QFile::exists(fileOf(code)))
            return code;
    }
    return {};
}

void Language::use(const QString &code)
{
    if (code.isEmpty())
        return;
    auto translator = std::make_unique<QTranslator>(qApp);
    if (!translator->load(fileOf(code)))
        return;
    QCoreApplication::installTranslator(translator.release());
    QGuiApplication::setLayoutDirection(QLocale(code).textDirection());
}

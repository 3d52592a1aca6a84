#pragma once

#include <QTranslator>

/// A language that nobody speaks: the English texts with accents, in brackets and 40 % longer. What reads plainly goes
/// past translation.
class PseudoTranslator : public QTranslator {
public:
    explicit PseudoTranslator(QObject *parent) : QTranslator(parent) { }

    bool isEmpty() const override { return false; }

    QString translate(const char *, const char *sourceText, const char *, int) const override
    {
        static const QString plain = QStringLiteral("aceinosuyACEINOSUY");
        static const QString accented = QStringLiteral("âçéîñöšüýÂÇÉÎÑÖŠÜÝ");
        const QString source = QString::fromUtf8(sourceText);
        QString text = source;
        for (qsizetype i = 0; i < text.size(); ++i) {
            // "%n" stays as it is.
            const bool isPlaceholder = i > 0 && source[i - 1] == u'%';
            if (const qsizetype at = plain.indexOf(text[i]); at >= 0 && !isPlaceholder)
                text[i] = accented[at];
        }
        QString more;
        while (more.size() + 2 < 0.4 * double(source.size()))
            more += more.size() % 6 == 5 ? u' ' : u'ö';
        return u'[' + text + more + u']';
    }
};

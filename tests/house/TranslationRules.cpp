// SPDX-License-Identifier: MIT
#include "TranslationRules.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

namespace zelk::house {

namespace {

Message readMessage(QXmlStreamReader& xml, const QString& context) {
    Message message;
    message.context = context;
    message.isNumbered = xml.attributes().value(QStringLiteral("numerus")) == QStringLiteral("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QStringLiteral("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QStringLiteral("comment")) {
            message.comment = xml.readElementText();
        } else if (xml.name() == QStringLiteral("translation")) {
            message.state = xml.attributes().value(QStringLiteral("type")).toString();
            if (!message.isNumbered) {
                message.translations += xml.readElementText();
                continue;
            }
            while (xml.readNextStartElement()) message.translations += xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

QString edgesOf(const QString& text) {
    static const QRegularExpression edges(QStringLiteral("^(\\s*).*?(\\s*)$"),
                                          QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = edges.match(text);
    return match.captured(1) + u'|' + match.captured(2);
}

}  // namespace

std::optional<TranslationFile> readTranslations(const QByteArray& text) {
    QXmlStreamReader xml(text);
    if (!xml.readNextStartElement() || xml.name() != QStringLiteral("TS")) return std::nullopt;
    TranslationFile file;
    file.language = xml.attributes().value(QStringLiteral("language")).toString();
    while (xml.readNextStartElement()) {
        QString context;
        while (xml.readNextStartElement()) {
            if (xml.name() == QStringLiteral("name"))
                context = xml.readElementText();
            else if (xml.name() == QStringLiteral("message"))
                file.messages.push_back(readMessage(xml, context));
            else
                xml.skipCurrentElement();
        }
    }
    if (xml.hasError()) return std::nullopt;
    return file;
}

QStringList placeholdersOf(const QString& text) {
    static const QRegularExpression placeholder(QStringLiteral("%(?:L?\\d{1,2}|L?n)"));
    QStringList found;
    for (auto match = placeholder.globalMatch(text); match.hasNext();) found += match.next().captured();
    found.sort();
    return found;
}

QStringList checkMessage(const Message& message, int forms) {
    QStringList wrong;
    if (!message.state.isEmpty()) wrong += message.state;
    const qsizetype wanted = message.isNumbered ? forms : 1;
    if (message.translations.size() != wanted)
        wrong += QStringLiteral("%1 forms instead of %2").arg(message.translations.size()).arg(wanted);
    for (const QString& translation : message.translations) {
        if (translation.isEmpty()) {
            wrong += QStringLiteral("empty");
            continue;
        }
        if (placeholdersOf(translation) != placeholdersOf(message.source))
            wrong += QStringLiteral("other placeholders in: %1").arg(translation);
        if (edgesOf(translation) != edgesOf(message.source))
            wrong += QStringLiteral("other blanks at the ends of: %1").arg(translation);
        if (translation.endsWith(u'…') != message.source.endsWith(u'…'))
            wrong += QStringLiteral("one of both ends in “…”: %1").arg(translation);
        // A sentence stays one.
        static const QRegularExpression stop(QStringLiteral("(?<!\\bT|\\bStd|\\bMin)\\.$"));
        if (stop.match(translation).hasMatch() && !message.source.endsWith(u'.'))
            wrong += QStringLiteral("a full stop too many: %1").arg(translation);
        if (message.source.endsWith(u'.') && !translation.endsWith(u'.'))
            wrong += QStringLiteral("a full stop too few: %1").arg(translation);
    }
    return wrong;
}

QStringList checkGermanMarks(const Message& message) {
    struct Mark {
        QRegularExpression where;
        const char* why;
    };
    static const std::vector<Mark> marks{
        {QRegularExpression(QStringLiteral("[\"'”«»]|“\\w|\\w„")), "quotes are „…“ and the apostrophe is ’"},
        {QRegularExpression(QStringLiteral("—")), "a dash is – between blanks"},
        {QRegularExpression(QStringLiteral("\\.\\.\\.")), "an ellipsis is one character"},
        {QRegularExpression(QStringLiteral("[\\w ]…|[\\d] %(?![\\dnL])")), "before … and % stands a no-break space"},
        {QRegularExpression(QStringLiteral("(^| )& ")), "“&” is written “und”"},
        {QRegularExpression(QStringLiteral("(?<!„)\\b(du|dein|deine|deinen|deinem|deiner|dir|dich)\\b")),
         "readers are “Sie”"},
    };
    QStringList wrong;
    for (const QString& translation : message.translations)
        for (const Mark& mark : marks)
            if (mark.where.match(translation).hasMatch())
                wrong += QStringLiteral("%1: %2").arg(QString::fromUtf8(mark.why), translation);
    return wrong;
}

}  // namespace zelk::house

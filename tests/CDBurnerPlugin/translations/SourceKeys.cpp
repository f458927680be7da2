// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/translations/SourceKeys.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

namespace {

/// Look-ups, markers, and the operations of the window's controller that pass a key on to one.
const QSet<QString> &keyTakers() {
    static const QSet<QString> names = {
        QStringLiteral("localizedString"), QStringLiteral("localized"),
        QStringLiteral("localizedText"),   QStringLiteral("localizableKey"),
        QStringLiteral("updateStage"),     QStringLiteral("updateTrackStage"),
        QStringLiteral("showErrorTips"),
    };
    return names;
}

struct Token {
    enum class Kind { literal, word, sign };
    Kind kind;
    QString text; ///< A literal's value.
};

/// The value of what stands between the quotes of a literal.
QString unescaped(const QString &quoted) {
    QString value;
    for (qsizetype position = 0; position < quoted.size(); ++position) {
        QChar character = quoted[position];
        if (character == u'\\' && position + 1 < quoted.size()) {
            character = quoted[++position];
            character = character == u'n' ? u'\n' : character == u't' ? u'\t' : character;
        }
        value += character;
    }
    return value;
}

std::vector<Token> tokens(const QString &source) {
    static const QRegularExpression token(
        QStringLiteral(
            R"re(//[^\n]*|/\*.*?\*/|'(?:[^'\\\n]|\\[^\n][^'\n]*)'|"((?:[^"\\]|\\.)*)"|(\w+)|(\S))re"),
        QRegularExpression::DotMatchesEverythingOption);
    std::vector<Token> result;
    for (auto matches = token.globalMatch(source); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        if (match.hasCaptured(2)) {
            result.push_back({Token::Kind::word, match.captured(2)});
        } else if (match.hasCaptured(3)) {
            result.push_back({Token::Kind::sign, match.captured(3)});
        } else if (match.captured().startsWith(u'"')) {
            result.push_back({Token::Kind::literal, unescaped(match.captured(1))});
        }
    }
    return result;
}

/// The tokens of the first argument of a call whose opening bracket is at `position`.
std::vector<Token> firstArgument(const std::vector<Token> &all, std::size_t position) {
    static const QString opening = QStringLiteral("([{");
    static const QString closing = QStringLiteral(")]}");
    std::vector<Token> argument;
    int depth = 0;
    for (; position < all.size(); ++position) {
        const Token &token = all[position];
        const bool isSign = token.kind == Token::Kind::sign;
        depth += isSign && opening.contains(token.text) ? 1 : 0;
        depth -= isSign && closing.contains(token.text) ? 1 : 0;
        if (depth == 0 || (depth == 1 && isSign && token.text == u',')) {
            break;
        }
        argument.push_back(token);
    }
    if (!argument.empty()) {
        argument.erase(argument.begin()); // The call's own bracket.
    }
    return argument;
}

/// "const char *key", "std::string_view key": a parameter, of a declaration rather than a call.
bool isDeclaration(const std::vector<Token> &argument) {
    return argument.size() > 1 && (argument[0].text == QStringLiteral("const") ||
                                   argument.end()[-2].text == QStringLiteral("string_view"));
}

void addKeys(const std::vector<Token> &argument, const QString &file, SourceKeys &result) {
    bool continues = false;
    bool hasLiteral = false;
    QString expression;
    for (const Token &token : argument) {
        expression += token.text;
        const bool isLiteral = token.kind == Token::Kind::literal;
        if (isLiteral && continues) {
            result.keys.back().text += token.text;
        } else if (isLiteral) {
            result.keys.push_back({token.text, file});
        }
        continues = isLiteral;
        hasLiteral = hasLiteral || isLiteral;
    }
    if (!hasLiteral) {
        result.computed.push_back({expression, file});
    }
}

} // namespace

void collectKeys(const QString &source, const QString &file, SourceKeys &result) {
    const std::vector<Token> all = tokens(source);
    for (std::size_t position = 0; position + 1 < all.size(); ++position) {
        const bool isCall = all[position].kind == Token::Kind::word &&
                            keyTakers().contains(all[position].text) &&
                            all[position + 1].text == u'(';
        if (isCall) {
            const std::vector<Token> argument = firstArgument(all, position + 1);
            if (!isDeclaration(argument)) {
                addKeys(argument, file, result);
            }
        }
    }
}

SourceKeys collectProjectKeys() {
    SourceKeys result;
    for (const char *folder : {"CDBurnerPlugin", "engine", "scorch"}) {
        for (const QString &file : sourceFiles(QLatin1String(folder))) {
            collectKeys(readSource(file), file, result);
        }
    }
    return result;
}

QStringList sourceFiles(const QString &folder) {
    const QString root = QStringLiteral(CDBURNER_SOURCES "/");
    QStringList files;
    QDirIterator entries(root + folder, {QStringLiteral("*.cpp"), QStringLiteral("*.h")},
                         QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        files += entries.next().sliced(root.size());
    }
    files.sort();
    return files;
}

QString readSource(const QString &file) {
    QFile source(QStringLiteral(CDBURNER_SOURCES "/") + file);
    return source.open(QIODevice::ReadOnly) ? QString::fromUtf8(source.readAll()) : QString();
}

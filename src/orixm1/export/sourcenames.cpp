#include "sourcenames.h"

#include <algorithm>
#include <cstring>

namespace TARVOORIXM1
{

namespace
{

enum class Language { Verilog, Vhdl, C };

struct Token {
    enum class Kind {
        Blank, // white space, with the line that is continued
        Comment,
        Text,      // with its quotation marks
        Word,      // keyword or name
        Escaped,   // a name in an escaped form
        Directive, // "`" and a word, in Verilog
        Number,
        Other // one character
    };

    Kind kind;
    QByteArray bytes;

    bool is(char c) const { return kind == Kind::Other && bytes.at(0) == c; }
    bool is(const char *word) const { return kind == Kind::Word && bytes == word; }
    bool counts() const { return kind != Kind::Blank && kind != Kind::Comment; }
};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool beginsWord(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

class Lexer
{
public:
    Lexer(const QByteArray &source, Language language)
        : m_source(source)
        , m_language(language)
    {
    }

    QVector<Token> tokens()
    {
        QVector<Token> result;
        Token before{Token::Kind::Blank, {}};
        for (m_at = 0; m_at < m_source.size();) {
            const int start = m_at;
            const Token::Kind kind = next(before);
            result.append({kind, m_source.mid(start, m_at - start)});
            if (result.last().counts())
                before = result.last();
        }
        return result;
    }

private:
    using Kind = Token::Kind;

    // A null character behind the end, which no source has.
    char peek(int ahead = 0) const
    {
        const int at = m_at + ahead;
        return at < m_source.size() ? m_source.at(at) : '\0';
    }
    bool isAtEnd() const { return m_at >= m_source.size(); }
    bool startsWith(const char *text) const
    {
        return std::strncmp(m_source.constData() + m_at, text, std::strlen(text)) == 0;
    }

    bool continuesWord(char c) const
    {
        return beginsWord(c) || isDigit(c) || (c == '$' && m_language == Language::Verilog);
    }

    bool isContinuedLine() const
    {
        return m_language != Language::Vhdl && peek() == '\\' &&
               (peek(1) == '\n' || (peek(1) == '\r' && peek(2) == '\n'));
    }

    void skipWord()
    {
        while (!isAtEnd() && continuesWord(peek()))
            ++m_at;
    }

    void skipLine()
    {
        while (!isAtEnd() && peek() != '\n')
            ++m_at;
    }

    Kind next(const Token &before)
    {
        const char c = peek();
        if (isBlank(c) || isContinuedLine()) {
            while (!isAtEnd() && (isBlank(peek()) || isContinuedLine()))
                ++m_at;
            return Kind::Blank;
        }
        if (startsWith(m_language == Language::Vhdl ? "--" : "//")) {
            skipLine();
            return Kind::Comment;
        }
        if (m_language != Language::Vhdl && startsWith("/*")) {
            const int end = m_source.indexOf("*/", m_at + 2);
            m_at = end < 0 ? m_source.size() : end + 2;
            return Kind::Comment;
        }
        if (c == '"') {
            skipText('"');
            return Kind::Text;
        }
        if (c == '\'')
            return nextAfterTick(before);
        if (c == '\\' && m_language != Language::C) {
            skipEscaped();
            return Kind::Escaped;
        }
        if (beginsWord(c)) {
            skipWord();
            return Kind::Word;
        }
        if (isDigit(c)) {
            skipWord();
            return Kind::Number;
        }
        ++m_at;
        if (c == '`' && m_language == Language::Verilog && beginsWord(peek())) {
            skipWord();
            return Kind::Directive;
        }
        // A system task, whose name is no other's.
        if (c == '$' && m_language == Language::Verilog && beginsWord(peek()))
            skipWord();
        return Kind::Other;
    }

    void skipText(char end)
    {
        ++m_at;
        while (!isAtEnd() && peek() != end && peek() != '\n') {
            if (peek() == '\\' && m_language != Language::Vhdl)
                ++m_at;
            ++m_at;
        }
        m_at = std::min(m_at + 1, m_source.size());
    }

    void skipEscaped()
    {
        ++m_at;
        if (m_language == Language::Verilog) {
            while (!isAtEnd() && !isBlank(peek()))
                ++m_at;
            return;
        }
        while (!isAtEnd() && peek() != '\\' && peek() != '\n')
            ++m_at;
        m_at = std::min(m_at + 1, m_source.size());
    }

    // A character, the base of a number, or a mark alone.
    Kind nextAfterTick(const Token &before)
    {
        if (m_language == Language::C) {
            skipText('\'');
            return Kind::Text;
        }
        // "value'('1')" is no character.
        if (m_language == Language::Vhdl && peek(2) == '\'' &&
            (peek(1) != '(' || before.kind != Kind::Word)) {
            m_at += 3;
            return Kind::Text;
        }
        ++m_at;
        if (m_language == Language::Verilog) {
            const int sign = peek() == 's' || peek() == 'S' ? 1 : 0;
            const char base = peek(sign);
            if (base != '\0' && std::strchr("bBoOdDhH", base)) {
                m_at += sign + 1;
                while (!isAtEnd() && (continuesWord(peek()) || peek() == '?'))
                    ++m_at;
                return Kind::Number;
            }
        }
        return Kind::Other;
    }

    const QByteArray &m_source;
    Language m_language;
    int m_at = 0;
};

bool isOneOf(const QByteArray &word, const char *words)
{
    return QByteArray(words).split(' ').contains(word);
}

// What a "`" stands before that is no macro.
bool isDirective(const QByteArray &word)
{
    return isOneOf(word,
                   "define undef undefineall ifdef ifndef elsif else endif include timescale "
                   "default_nettype resetall celldefine endcelldefine line pragma begin_keywords "
                   "end_keywords unconnected_drive nounconnected_drive default_decay_time "
                   "default_trireg_strength delay_mode_distributed delay_mode_path delay_mode_unit "
                   "delay_mode_zero __FILE__ __LINE__");
}

// Directives behind which a macro's name stands.
bool namesMacro(const QByteArray &directive)
{
    return isOneOf(directive, "`define `undef `ifdef `ifndef `elsif");
}

// Macros of whoever compiles and of tools, which hold for all sources.
bool isForAllSources(const QByteArray &macro)
{
    return isOneOf(macro, "TARVO_NO_TIMESCALE COCOTB_SIM SYNTHESIS SIMULATION VERILATOR YOSYS "
                          "__ICARUS__ FORMAL");
}

// The tokens that count, by their places.
class Significant
{
public:
    explicit Significant(const QVector<Token> &tokens)
        : m_tokens(tokens)
    {
        for (int i = 0; i < tokens.size(); ++i) {
            if (tokens.at(i).counts())
                m_places.append(i);
        }
    }

    int size() const { return m_places.size(); }
    int place(int index) const { return m_places.at(index); }
    // Nothing where there is none.
    const Token &at(int index) const
    {
        static const Token none{Token::Kind::Blank, {}};
        return index >= 0 && index < m_places.size() ? m_tokens.at(m_places.at(index)) : none;
    }
    // Whether a token begins a line that is not continued.
    bool beginsLine(int index) const
    {
        for (int i = m_places.at(index) - 1; i >= 0; --i) {
            const Token &token = m_tokens.at(i);
            if (token.kind == Token::Kind::Comment) {
                if (token.bytes.contains('\n'))
                    return true;
                continue;
            }
            if (token.kind != Token::Kind::Blank)
                return false;
            const QByteArray &bytes = token.bytes;
            for (int end = bytes.indexOf('\n'); end >= 0; end = bytes.indexOf('\n', end + 1)) {
                const int last = end > 0 && bytes.at(end - 1) == '\r' ? end - 2 : end - 1;
                if (last < 0 || bytes.at(last) != '\\')
                    return true;
            }
        }
        return true;
    }

private:
    const QVector<Token> &m_tokens;
    QVector<int> m_places;
};

bool definesModule(const Token &token)
{
    return token.is("module") || token.is("macromodule");
}

// Whether a name at this place can only be that of a module: where it is defined, and in front of
// an instance. What a macro stands for ends with its line.
bool isModulePlace(const Significant &tokens, int index, bool isInMacro)
{
    const Token &before = tokens.at(index - 1);
    if (definesModule(before) || (before.is(':') && tokens.at(index - 2).is("endmodule")))
        return true;
    if (before.is('.') || before.is('`'))
        return false;
    if (isInMacro && (index + 1 >= tokens.size() || tokens.beginsLine(index + 1)))
        return false;
    const Token &after = tokens.at(index + 1);
    return after.kind == Token::Kind::Word || after.kind == Token::Kind::Escaped ||
           (after.is('#') && tokens.at(index + 2).is('('));
}

// Of `define: its macro is alone on the line with one more token, which is at the next index.
bool isAlias(const Significant &tokens, int index)
{
    return tokens.at(index).bytes == "`define" && tokens.at(index + 1).kind == Token::Kind::Word &&
           index + 2 < tokens.size() && !tokens.beginsLine(index + 2) &&
           (index + 3 >= tokens.size() || tokens.beginsLine(index + 3));
}

QByteArray withPrefix(const QByteArray &name, const QByteArray &prefix)
{
    return prefix + name;
}

} // namespace

namespace SourceNames
{

Verilog verilogNames(const QVector<QByteArray> &sources)
{
    Verilog names;
    QHash<QByteArray, QVector<Token>> aliases;
    for (const QByteArray &source : sources) {
        const QVector<Token> all = Lexer(source, Language::Verilog).tokens();
        const Significant tokens(all);
        for (int i = 0; i < tokens.size(); ++i) {
            const Token &token = tokens.at(i);
            const Token &next = tokens.at(i + 1);
            if (definesModule(token)) {
                if (next.kind == Token::Kind::Word)
                    names.modules.insert(next.bytes);
                else if (next.kind == Token::Kind::Directive)
                    names.moduleMacros.insert(next.bytes.mid(1));
            }
            if (token.kind != Token::Kind::Directive)
                continue;
            const QByteArray macro = namesMacro(token.bytes) ? next.bytes : token.bytes.mid(1);
            if (!isDirective(macro) && !isForAllSources(macro))
                names.macros.insert(macro);
            if (isAlias(tokens, i))
                aliases[next.bytes].append(tokens.at(i + 2));
        }
    }
    // Macros that stand for macros that stand for a module.
    QVector<QByteArray> open = names.moduleMacros.values().toVector();
    while (!open.isEmpty()) {
        const QVector<Token> bodies = aliases.value(open.takeLast());
        for (const Token &body : bodies) {
            const QByteArray macro = body.bytes.mid(1);
            if (body.kind == Token::Kind::Word) {
                names.modules.insert(body.bytes);
            } else if (body.kind == Token::Kind::Directive && !names.moduleMacros.contains(macro)) {
                names.moduleMacros.insert(macro);
                open.append(macro);
            }
        }
    }
    return names;
}

QByteArray prefixedVerilog(const QByteArray &source, const Verilog &names, const QByteArray &prefix)
{
    QVector<Token> all = Lexer(source, Language::Verilog).tokens();
    const QVector<Token> original = all;
    const Significant tokens(original);
    const auto macro = [&names, &prefix](const QByteArray &name) -> QByteArray {
        if (name.startsWith("HAVE_") && names.modules.contains(name.mid(5)))
            return "HAVE_" + withPrefix(name.mid(5), prefix);
        return names.macros.contains(name) ? withPrefix(name, prefix) : name;
    };
    bool isInMacro = false;
    for (int i = 0; i < tokens.size(); ++i) {
        const Token &token = tokens.at(i);
        const Token &before = tokens.at(i - 1);
        if (token.bytes == "`define")
            isInMacro = true;
        else if (isInMacro && tokens.beginsLine(i))
            isInMacro = false;
        QByteArray &bytes = all[tokens.place(i)].bytes;
        if (token.kind == Token::Kind::Directive) {
            if (!isDirective(bytes.mid(1)))
                bytes = '`' + macro(bytes.mid(1));
        } else if (token.kind == Token::Kind::Text) {
            const QByteArray text = bytes.mid(1, bytes.size() - 2);
            if (before.bytes == "`include" && names.files.contains(text))
                bytes = '"' + withPrefix(text, prefix) + '"';
            else if (const auto found = names.texts.constFind(text);
                     found != names.texts.constEnd())
                bytes = '"' + *found + '"';
        } else if (token.kind == Token::Kind::Word) {
            const bool isAliased =
                isAlias(tokens, i - 2) && names.moduleMacros.contains(before.bytes);
            if (before.kind == Token::Kind::Directive && namesMacro(before.bytes))
                bytes = macro(bytes);
            else if (names.modules.contains(bytes) &&
                     (isAliased || isModulePlace(tokens, i, isInMacro)))
                bytes = withPrefix(bytes, prefix);
        }
    }
    QByteArray result;
    for (const Token &token : qAsConst(all))
        result += token.bytes;
    return result;
}

QByteArray prefixedVhdl(const QByteArray &source, const QSet<QByteArray> &names,
                        const QByteArray &prefix)
{
    QByteArray result;
    const QVector<Token> tokens = Lexer(source, Language::Vhdl).tokens();
    for (const Token &token : tokens)
        result += token.kind == Token::Kind::Word && names.contains(token.bytes.toLower())
                      ? withPrefix(token.bytes, prefix)
                      : token.bytes;
    return result;
}

QSet<QByteArray> unitsOfVhdl(const QByteArray &source)
{
    QSet<QByteArray> units;
    const QVector<Token> all = Lexer(source, Language::Vhdl).tokens();
    const Significant tokens(all);
    for (int i = 0; i + 2 < tokens.size(); ++i) {
        const QByteArray word = tokens.at(i).bytes.toLower();
        if ((word == "entity" || word == "package") && tokens.at(i + 2).bytes.toLower() == "is")
            units.insert(tokens.at(i + 1).bytes.toLower());
    }
    return units;
}

QSet<QByteArray> declaredInC(const QByteArray &header)
{
    QSet<QByteArray> names;
    QSet<QByteArray> macros;
    const QVector<Token> all = Lexer(header, Language::C).tokens();
    const Significant tokens(all);
    int braces = 0;      // without those of extern "C"
    int parentheses = 0; // outside of braces
    int enumerators = 0; // the braces in which they are; 0: in none
    bool inEnum = false; // an enumeration has begun, its braces have not
    for (int i = 0; i < tokens.size(); ++i) {
        const Token &token = tokens.at(i);
        const Token &next = tokens.at(i + 1);
        if (token.is('#') && tokens.beginsLine(i)) {
            if (next.is("define")) {
                names.insert(tokens.at(i + 2).bytes);
                macros.insert(tokens.at(i + 2).bytes);
            }
            while (i + 1 < tokens.size() && !tokens.beginsLine(i + 1))
                ++i;
            continue;
        }
        if (token.is('{')) {
            const bool isLinkage = tokens.at(i - 1).kind == Token::Kind::Text;
            braces += isLinkage ? 0 : 1;
            if (inEnum)
                enumerators = braces;
            inEnum = false;
        } else if (token.is('}')) {
            if (enumerators == braces)
                enumerators = 0;
            braces = std::max(0, braces - 1);
        } else if (braces == 0 && token.is('(')) {
            ++parentheses;
        } else if (braces == 0 && token.is(')')) {
            --parentheses;
        }
        if (token.kind != Token::Kind::Word)
            continue;
        const Token &before = tokens.at(i - 1);
        if (token.is("enum"))
            inEnum = true;
        const bool isEnumerator =
            enumerators > 0 && braces == enumerators && (before.is('{') || before.is(','));
        const bool isTag = (before.is("struct") || before.is("union") || before.is("enum")) &&
                           braces == 0 && next.is('{');
        const bool isHanded =
            parentheses == 1 && before.is('(') && macros.contains(tokens.at(i - 2).bytes);
        const bool isDeclared = braces == 0 && parentheses == 0 && !macros.contains(token.bytes) &&
                                (next.is('(') || next.is(';') || next.is('[') || next.is('=')) &&
                                !token.bytes.startsWith("__attribute");
        if (isEnumerator || isTag || (isHanded && braces == 0) || isDeclared)
            names.insert(token.bytes);
    }
    return names;
}

QByteArray prefixedC(const QByteArray &source, const QSet<QByteArray> &names,
                     const QSet<QByteArray> &files, const QByteArray &prefix)
{
    const auto renamed = [&prefix](QByteArray name) {
        int underscores = 0;
        while (underscores < name.size() && name.at(underscores) == '_')
            ++underscores;
        return withPrefix(name.mid(underscores), prefix);
    };
    const auto inComment = [&](const QByteArray &comment) {
        QByteArray result;
        for (int i = 0; i < comment.size();) {
            int end = i;
            while (end < comment.size() &&
                   (beginsWord(comment.at(end)) || isDigit(comment.at(end))))
                ++end;
            if (end == i) {
                result += comment.at(i++);
                continue;
            }
            const QByteArray word = comment.mid(i, end - i);
            const QByteArray file = comment.mid(i, end - i + 2);
            const bool isFile = files.contains(file) &&
                                (end + 2 >= comment.size() || !beginsWord(comment.at(end + 2)));
            const bool isName = word.contains('_') && names.contains(word);
            result += isFile ? withPrefix(word, prefix) : isName ? renamed(word) : word;
            i = end;
        }
        return result;
    };
    QByteArray result;
    const QVector<Token> all = Lexer(source, Language::C).tokens();
    QByteArray before;
    for (const Token &token : all) {
        const bool isName = token.kind == Token::Kind::Word && names.contains(token.bytes);
        if (token.kind == Token::Kind::Comment)
            result += inComment(token.bytes);
        else if (token.kind == Token::Kind::Text && before == "include" &&
                 files.contains(token.bytes.mid(1, token.bytes.size() - 2)))
            result += '"' + withPrefix(token.bytes.mid(1), prefix);
        else
            result += isName ? renamed(token.bytes) : token.bytes;
        if (token.counts())
            before = token.bytes;
    }
    return result;
}

} // namespace SourceNames

} // namespace TARVOORIXM1

#include "verilogscan.h"

#include "tr.h"

#include <reading/limits.h>

#include <QHash>

#include <algorithm>
#include <array>
#include <string_view>

namespace Synthesis
{

namespace
{

using namespace std::string_view_literals;

constexpr std::array keywords{
    "always"sv,
    "and"sv,
    "assign"sv,
    "automatic"sv,
    "begin"sv,
    "buf"sv,
    "bufif0"sv,
    "bufif1"sv,
    "case"sv,
    "casex"sv,
    "casez"sv,
    "cell"sv,
    "cmos"sv,
    "config"sv,
    "deassign"sv,
    "default"sv,
    "defparam"sv,
    "design"sv,
    "disable"sv,
    "edge"sv,
    "else"sv,
    "end"sv,
    "endcase"sv,
    "endconfig"sv,
    "endfunction"sv,
    "endgenerate"sv,
    "endmodule"sv,
    "endprimitive"sv,
    "endspecify"sv,
    "endtable"sv,
    "endtask"sv,
    "event"sv,
    "for"sv,
    "force"sv,
    "forever"sv,
    "fork"sv,
    "function"sv,
    "generate"sv,
    "genvar"sv,
    "highz0"sv,
    "highz1"sv,
    "if"sv,
    "ifnone"sv,
    "incdir"sv,
    "include"sv,
    "initial"sv,
    "inout"sv,
    "input"sv,
    "instance"sv,
    "integer"sv,
    "join"sv,
    "large"sv,
    "liblist"sv,
    "library"sv,
    "localparam"sv,
    "macromodule"sv,
    "medium"sv,
    "module"sv,
    "nand"sv,
    "negedge"sv,
    "nmos"sv,
    "nor"sv,
    "noshowcancelled"sv,
    "not"sv,
    "notif0"sv,
    "notif1"sv,
    "or"sv,
    "output"sv,
    "parameter"sv,
    "pmos"sv,
    "posedge"sv,
    "primitive"sv,
    "pull0"sv,
    "pull1"sv,
    "pulldown"sv,
    "pullup"sv,
    "pulsestyle_ondetect"sv,
    "pulsestyle_onevent"sv,
    "rcmos"sv,
    "real"sv,
    "realtime"sv,
    "reg"sv,
    "release"sv,
    "repeat"sv,
    "rnmos"sv,
    "rpmos"sv,
    "rtran"sv,
    "rtranif0"sv,
    "rtranif1"sv,
    "scalared"sv,
    "showcancelled"sv,
    "signed"sv,
    "small"sv,
    "specify"sv,
    "specparam"sv,
    "strong0"sv,
    "strong1"sv,
    "supply0"sv,
    "supply1"sv,
    "table"sv,
    "task"sv,
    "time"sv,
    "tran"sv,
    "tranif0"sv,
    "tranif1"sv,
    "tri"sv,
    "tri0"sv,
    "tri1"sv,
    "triand"sv,
    "trior"sv,
    "trireg"sv,
    "unsigned"sv,
    "use"sv,
    "uwire"sv,
    "vectored"sv,
    "wait"sv,
    "wand"sv,
    "weak0"sv,
    "weak1"sv,
    "while"sv,
    "wire"sv,
    "wor"sv,
    "xnor"sv,
    "xor"sv,
};

// Directives that take the rest of their line.
constexpr std::array lineDirectives{
    "timescale"sv, "define"sv, "undef"sv,           "include"sv, "ifdef"sv,
    "ifndef"sv,    "elsif"sv,  "default_nettype"sv, "line"sv,    "pragma"sv,
};

// Keywords after which a new statement begins.
constexpr std::array statementEnds{
    "begin"sv,   "else"sv,     "end"sv,        "endcase"sv,  "endfunction"sv, "endgenerate"sv,
    "endtask"sv, "endtable"sv, "endspecify"sv, "generate"sv, "join"sv,
};

template <typename Array>
bool contains(const Array &words, const QByteArray &word)
{
    const std::string_view view(word.constData(), size_t(word.size()));
    return std::find(words.begin(), words.end(), view) != words.end();
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

struct Token {
    enum Kind { End, Name, Keyword, Other } kind = End;
    QByteArray text; // of names and keywords; of others the first character

    bool is(const char *what) const { return kind != Name && text == what; }
};

class Lexer
{
public:
    explicit Lexer(const QByteArray &text)
        : m_at(text.constBegin())
        , m_end(text.constEnd())
    {
    }

    // The text ended inside a comment, string or attribute.
    bool isBroken() const { return m_broken; }

    Token next()
    {
        skipBlanks();
        if (m_at == m_end)
            return {};
        const char *first = m_at;
        if (*m_at == '\\') {
            while (m_at != m_end && !isBlank(*m_at))
                ++m_at;
            return {Token::Name, QByteArray(first + 1, int(m_at - first - 1))};
        }
        if (isLetter(*m_at) || *m_at == '$') {
            skipWord();
            const QByteArray word(first, int(m_at - first));
            return {contains(keywords, word) ? Token::Keyword : Token::Name, word};
        }
        if (isDigit(*m_at) || *m_at == '\'') {
            while (m_at != m_end &&
                   (isLetter(*m_at) || isDigit(*m_at) || *m_at == '\'' || *m_at == '?'))
                ++m_at;
        } else if (*m_at == '"') {
            ++m_at;
            skipString();
        } else {
            ++m_at;
        }
        return {Token::Other, QByteArray(first, 1)};
    }

private:
    bool startsWith(std::string_view what) const
    {
        return size_t(m_end - m_at) >= what.size() && std::equal(what.begin(), what.end(), m_at);
    }

    void skipWord()
    {
        while (m_at != m_end && (isLetter(*m_at) || isDigit(*m_at) || *m_at == '$'))
            ++m_at;
    }

    void skipPast(std::string_view what)
    {
        m_at = std::search(m_at, m_end, what.begin(), what.end());
        if (m_at == m_end)
            m_broken = m_broken || what != "\n"sv;
        else
            m_at += what.size();
    }

    void skipString()
    {
        while (m_at != m_end && *m_at != '"' && *m_at != '\n')
            m_at += *m_at == '\\' && m_at + 1 != m_end ? 2 : 1;
        if (m_at == m_end)
            m_broken = true;
        else
            ++m_at;
    }

    void skipBlanks()
    {
        while (m_at != m_end) {
            if (isBlank(*m_at)) {
                ++m_at;
            } else if (startsWith("//")) {
                skipPast("\n");
            } else if (startsWith("/*")) {
                m_at += 2;
                skipPast("*/");
            } else if (startsWith("(*") && !startsWith("(*)")) {
                m_at += 2;
                skipPast("*)");
            } else if (*m_at == '`') {
                const char *first = ++m_at;
                skipWord();
                if (contains(lineDirectives, QByteArray(first, int(m_at - first))))
                    skipPast("\n");
            } else {
                return;
            }
        }
    }

    const char *m_at;
    const char *m_end;
    bool m_broken = false;
};

class Scanner
{
public:
    explicit Scanner(const QByteArray &text)
        : m_lexer(text)
    {
        advance();
    }

    VerilogOutline scan()
    {
        bool ended = false;
        while (m_token.kind != Token::End) {
            ended = false;
            const bool primitive = m_token.is("primitive");
            if (!m_token.is("module") && !m_token.is("macromodule") && !primitive) {
                advance();
                continue;
            }
            advance();
            VerilogOutline::Module module;
            module.name = m_token.text;
            skipPast(";");
            const char *end = primitive ? "endprimitive" : "endmodule";
            while (m_token.kind != Token::End && !m_token.is(end))
                statement(&module);
            ended = m_token.is(end);
            m_outline.modules << module;
            advance();
        }
        m_outline.complete = ended && !m_lexer.isBroken();
        return m_outline;
    }

private:
    void advance() { m_token = m_lexer.next(); }

    // From "(" or "[" past the matching end.
    void skipBrackets()
    {
        int depth = 0;
        do {
            if (m_token.is("(") || m_token.is("["))
                ++depth;
            else if (m_token.is(")") || m_token.is("]"))
                --depth;
            advance();
        } while (depth > 0 && m_token.kind != Token::End);
    }

    void skipPast(const char *what)
    {
        while (m_token.kind != Token::End && !m_token.is(what)) {
            if (m_token.is("endmodule"))
                return;
            advance();
        }
        advance();
    }

    void statement(VerilogOutline::Module *module)
    {
        if (m_token.kind == Token::Name) {
            instances(module);
            return;
        }
        const Token first = m_token;
        advance();
        if (first.is("begin") && m_token.is(":")) {
            advance();
            advance();
        } else if ((first.is("if") || first.is("for")) && m_token.is("(")) {
            skipBrackets();
        } else if (first.kind == Token::Keyword && !contains(statementEnds, first.text)) {
            skipToStatement();
        }
    }

    // Behind a keyword: up to and past the ";", or up to what begins a statement of its own.
    void skipToStatement()
    {
        while (m_token.kind != Token::End && !m_token.is("endmodule") && !m_token.is("begin")) {
            if (m_token.is(";")) {
                advance();
                return;
            }
            if (m_token.is("(") || m_token.is("["))
                skipBrackets();
            else
                advance();
        }
    }

    void instances(VerilogOutline::Module *module)
    {
        const QByteArray type = m_token.text;
        advance();
        if (m_token.is("#")) {
            advance();
            if (m_token.is("("))
                skipBrackets();
            else
                advance();
        }
        while (m_token.kind == Token::Name) {
            advance();
            if (m_token.is("["))
                skipBrackets();
            if (!m_token.is("("))
                break;
            skipBrackets();
            ++module->instances[type];
            if (!m_token.is(","))
                break;
            advance();
        }
        skipToStatement();
    }

    Lexer m_lexer;
    Token m_token;
    VerilogOutline m_outline;
};

} // namespace

bool VerilogOutline::defines(const QByteArray &module) const
{
    return std::any_of(modules.begin(), modules.end(),
                       [&](const Module &candidate) { return candidate.name == module; });
}

QMap<QByteArray, int> VerilogOutline::instances() const
{
    QMap<QByteArray, int> result;
    for (const Module &module : modules) {
        for (auto it = module.instances.begin(); it != module.instances.end(); ++it)
            result[it.key()] += it.value();
    }
    return result;
}

QMap<QByteArray, int> VerilogOutline::leavesOf(const QByteArray &top, QString *mistake) const
{
    QHash<QByteArray, const Module *> byName;
    for (const Module &module : modules)
        byName.insert(module.name, &module);
    const auto isLeaf = [&](const QByteArray &name) {
        const Module *module = byName.value(name);
        return !module || (module->instances.isEmpty() && name != top);
    };

    // Depth first, without recursion: a module is done when everything below it is.
    struct Visit {
        QByteArray name;
        QMap<QByteArray, int>::const_iterator next;
        QMap<QByteArray, int>::const_iterator end;
    };
    enum State { Unseen, Open, Done };
    static const QMap<QByteArray, int> none;
    QHash<QByteArray, State> states;
    QVector<Visit> path;
    QByteArrayList belowFirst;
    const auto open = [&](const QByteArray &name) {
        states.insert(name, Open);
        const QMap<QByteArray, int> &below = isLeaf(name) ? none : byName.value(name)->instances;
        path.append({name, below.constBegin(), below.constEnd()});
    };
    open(top);
    while (!path.isEmpty()) {
        Visit &visit = path.last();
        if (visit.next == visit.end) {
            states.insert(visit.name, Done);
            belowFirst.append(visit.name);
            path.removeLast();
            continue;
        }
        const QByteArray name = visit.next.key();
        ++visit.next;
        const State state = states.value(name, Unseen);
        if (state == Open) {
            *mistake = Tr::tr("the module \"%1\" contains itself").arg(QString::fromUtf8(name));
            return {};
        }
        if (state == Unseen)
            open(name);
    }

    using Reading::Limits::netlistInstances;
    QHash<QByteArray, qint64> counts{{top, 1}};
    QMap<QByteArray, int> leaves;
    qint64 all = 0;
    for (auto it = belowFirst.crbegin(); it != belowFirst.crend(); ++it) {
        const qint64 count = counts.value(*it);
        if (isLeaf(*it)) {
            leaves.insert(*it, int(count));
            all += count;
        } else {
            const QMap<QByteArray, int> &below = byName.value(*it)->instances;
            for (auto child = below.begin(); child != below.end(); ++child) {
                qint64 &sum = counts[child.key()];
                // Both factors are 31 bits at most.
                sum = std::min<qint64>(sum + count * child.value(), netlistInstances + 1);
            }
        }
        if (count > netlistInstances || all > netlistInstances) {
            *mistake = Tr::tr("the module \"%1\" holds more than %2 instances")
                           .arg(QString::fromUtf8(top), QString::number(netlistInstances));
            return {};
        }
    }
    return leaves;
}

VerilogOutline scanVerilog(const QByteArray &text)
{
    return Scanner(text).scan();
}

QByteArray verilogName(const QByteArray &name)
{
    const bool plain = !name.isEmpty() && isLetter(name.at(0)) && !contains(keywords, name) &&
                       std::all_of(name.begin(), name.end(),
                                   [](char c) { return isLetter(c) || isDigit(c) || c == '$'; });
    return plain ? name : '\\' + name + ' ';
}

} // namespace Synthesis

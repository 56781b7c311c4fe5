#include "languages.h"

#include "qttexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>

// The resources are in a static library, where nothing else refers to them; the macro wants to
// stand outside of namespaces.
static void haveTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace Workbench
{

namespace
{

struct Row {
    const char *code;
    const char *name;
};
// A further language has a row here, one in ../translations/languages.cmake and its file beside it.
constexpr Row languages[] = {
    {"en", "English"},
    {"de", "Deutsch"},
    {"zh_CN", "简体中文"},
};

// Countries share a language, but not two scripts a text.
bool isFor(const char *code, const QLocale &locale)
{
    const QLocale own{QLatin1String(code)};
    return own.language() == locale.language() && own.script() == locale.script();
}

} // namespace

int PluginTexts::s_count = 0;

QVector<Languages::Choice> Languages::available()
{
    QVector<Choice> result;
    for (const Row &row : languages)
        result.append({QString::fromLatin1(row.code), QString::fromUtf8(row.name)});
    return result;
}

QString Languages::chosen(const QString &wish, const QStringList &system)
{
    for (const Row &row : languages) {
        if (wish == QLatin1String(row.code))
            return wish;
    }
    for (const QString &preferred : system) {
        for (const Row &row : languages) {
            if (isFor(row.code, QLocale(preferred)))
                return QString::fromLatin1(row.code);
        }
    }
    return QString::fromLatin1(languages[0].code);
}

QLocale Languages::locale()
{
    const QLocale locale;
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates)
                                           : locale;
}

Languages::Languages(const QString &wish, const QString &qtTexts)
    : m_code(chosen(wish, QLocale::system().uiLanguages()))
{
    haveTranslations();
    // The system's country counts as long as its language is the one of the texts.
    if (m_code == wish && !isFor(m_code.toLatin1().constData(), m_before))
        QLocale::setDefault(QLocale(m_code));
    const QString folder =
        qtTexts.isEmpty() ? QLibraryInfo::location(QLibraryInfo::TranslationsPath) : qtTexts;
    if (m_texts.load(QLatin1String(":/workbench/translations/workbench_") + m_code +
                     QLatin1String(".qm")))
        QCoreApplication::installTranslator(&m_texts);
    // Asked before the one above: Qt's own translations are those of the whole desktop.
    if (m_qtTexts.read(folder + QLatin1String("/qtbase_") + m_code + QLatin1String(".qm")))
        QCoreApplication::installTranslator(&m_qtTexts);
}

QString Languages::OwnTranslator::translate(const char *context, const char *text,
                                            const char *disambiguation, int n) const
{
    return PluginTexts::areShown() && isQtContext(context)
               ? QString()
               : QTranslator::translate(context, text, disambiguation, n);
}

Languages::~Languages()
{
    QCoreApplication::removeTranslator(&m_texts);
    QCoreApplication::removeTranslator(&m_qtTexts);
    QLocale::setDefault(m_before);
}

} // namespace Workbench

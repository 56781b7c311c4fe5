#include "fontconfiguration.h"

#include <QLibrary>

#include <type_traits>

namespace Workbench
{

namespace
{

// What is asked of the library, by name: it is there already, by way of the platform's part of Qt,
// and stays, but a platform may do without.
class FontLibrary
{
public:
    FontLibrary()
    {
        QLibrary library(QStringLiteral("fontconfig"), 1);
        const auto find = [&library](auto *function, const char *name) {
            *function =
                reinterpret_cast<std::remove_pointer_t<decltype(function)>>(library.resolve(name));
            return *function != nullptr;
        };
        m_isThere = find(&m_initialise, "FcInit");
        m_isWhole = m_isThere && find(&m_create, "FcConfigCreate") &&
                    find(&m_parse, "FcConfigParseAndLoad") &&
                    find(&m_cacheFolders, "FcConfigGetCacheDirs") &&
                    find(&m_next, "FcStrListNext") && find(&m_done, "FcStrListDone") &&
                    find(&m_setCurrent, "FcConfigSetCurrent") &&
                    find(&m_destroy, "FcConfigDestroy");
    }

    bool isThere() const { return m_isThere; }

    void initialise() const
    {
        if (!readRules())
            m_initialise();
    }

private:
    struct Configuration;
    struct Texts;

    // As FcInit() does, which then also reads all rules that are not switched on, for who lists
    // them, and that is as much again. False, with nothing changed, if a system needs what FcInit()
    // does where rules are missing.
    bool readRules() const
    {
        Configuration *configuration = m_isWhole ? m_create() : nullptr;
        if (!configuration)
            return false;
        if (m_parse(configuration, nullptr, 0) && hasCache(configuration) &&
            m_setCurrent(configuration))
            return true;
        m_destroy(configuration);
        return false;
    }

    bool hasCache(Configuration *configuration) const
    {
        Texts *folders = m_cacheFolders(configuration);
        if (!folders)
            return false;
        const bool isThere = m_next(folders) != nullptr;
        m_done(folders);
        return isThere;
    }

    bool m_isThere = false;
    bool m_isWhole = false;
    int (*m_initialise)() = nullptr;
    Configuration *(*m_create)() = nullptr;
    int (*m_parse)(Configuration *, const unsigned char *file, int complain) = nullptr;
    Texts *(*m_cacheFolders)(Configuration *) = nullptr;
    unsigned char *(*m_next)(Texts *) = nullptr;
    void (*m_done)(Texts *) = nullptr;
    int (*m_setCurrent)(Configuration *) = nullptr; // has the fonts found, too
    void (*m_destroy)(Configuration *) = nullptr;
};

} // namespace

std::future<void> readFontConfiguration()
{
    const FontLibrary library;
    return std::async(library.isThere() ? std::launch::async : std::launch::deferred, [library] {
        if (library.isThere())
            library.initialise();
    });
}

} // namespace Workbench

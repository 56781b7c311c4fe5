#include "names.h"

#include "config/latin1literal.h"
#include "generate/synthesisrequest.h"
#include "system/systemmap.h"

#include <QChar>

namespace TARVOORIXM1
{

namespace
{

// By where the words come from; a blank between them.
constexpr QLatin1String knownWords[] = {
    // C, up to the standard after C17
    "auto break case char const continue default do double else enum extern float for goto if "
    "inline int long register restrict return short signed sizeof static struct switch typedef "
    "union unsigned void volatile while alignas alignof bool constexpr false nullptr static_assert "
    "thread_local true typeof typeof_unqual asm fortran"_l1,
    // C++, up to C++20
    "and and_eq bitand bitor catch char16_t char32_t char8_t class co_await co_return co_yield "
    "compl concept const_cast consteval constinit decltype delete dynamic_cast explicit export "
    "friend mutable namespace new noexcept not not_eq operator or or_eq private protected public "
    "reinterpret_cast requires static_cast template this throw try typeid typename using virtual "
    "wchar_t xor xor_eq final override import module"_l1,
    // macros without parameters
    "BUFSIZ CHAR_BIT CHAR_MAX CHAR_MIN CLOCKS_PER_SEC CLK_TCK EOF EXIT_FAILURE EXIT_SUCCESS "
    "FILENAME_MAX FOPEN_MAX HUGE_VAL HUGE_VALF HUGE_VALL I INFINITY INT_MAX INT_MIN INT_WIDTH "
    "LLONG_MAX LLONG_MIN LLONG_WIDTH LONG_MAX LONG_MIN LONG_WIDTH LONG_LONG_MAX LONG_LONG_MIN "
    "ULONG_LONG_MAX L_tmpnam MATH_ERREXCEPT MATH_ERRNO MB_CUR_MAX MB_LEN_MAX NAN NDEBUG NULL "
    "PTRDIFF_MAX PTRDIFF_MIN PTRDIFF_WIDTH RAND_MAX SCHAR_MAX SCHAR_MIN SCHAR_WIDTH SEEK_CUR "
    "SEEK_END SEEK_SET SHRT_MAX SHRT_MIN SHRT_WIDTH SIZE_MAX SIZE_WIDTH SNAN SNANF SNANL "
    "TIME_UTC TMP_MAX TSS_DTOR_ITERATIONS UCHAR_MAX UCHAR_WIDTH UINT_MAX UINT_WIDTH ULLONG_MAX "
    "ULLONG_WIDTH ULONG_MAX ULONG_WIDTH USHRT_MAX USHRT_WIDTH WCHAR_MAX WCHAR_MIN WCHAR_WIDTH "
    "WEOF WINT_MAX WINT_MIN WINT_WIDTH BOOL_MAX BOOL_WIDTH CHAR_WIDTH CMPLX CMPLXF CMPLXL "
    "ONCE_FLAG_INIT ATOMIC_FLAG_INIT ATOMIC_VAR_INIT complex imaginary errno math_errhandling "
    "noreturn stderr stdin stdout"_l1,
    // macros of numbers with a point
    "FLT_EVAL_METHOD FLT_RADIX FLT_ROUNDS DECIMAL_DIG FLT_DECIMAL_DIG FLT_DIG FLT_EPSILON "
    "FLT_HAS_SUBNORM FLT_MANT_DIG FLT_MAX FLT_MAX_10_EXP FLT_MAX_EXP FLT_MIN FLT_MIN_10_EXP "
    "FLT_MIN_EXP FLT_NORM_MAX FLT_SNAN FLT_TRUE_MIN DBL_DECIMAL_DIG DBL_DIG DBL_EPSILON "
    "DBL_HAS_SUBNORM DBL_MANT_DIG DBL_MAX DBL_MAX_10_EXP DBL_MAX_EXP DBL_MIN DBL_MIN_10_EXP "
    "DBL_MIN_EXP DBL_NORM_MAX DBL_SNAN DBL_TRUE_MIN LDBL_DECIMAL_DIG LDBL_DIG LDBL_EPSILON "
    "LDBL_HAS_SUBNORM LDBL_MANT_DIG LDBL_MAX LDBL_MAX_10_EXP LDBL_MAX_EXP LDBL_MIN LDBL_MIN_10_EXP "
    "LDBL_MIN_EXP LDBL_NORM_MAX LDBL_SNAN LDBL_TRUE_MIN FP_FAST_FMA FP_FAST_FMAF FP_FAST_FMAL "
    "FP_ILOGB0 FP_ILOGBNAN FP_INFINITE FP_LLOGB0 FP_LLOGBNAN FP_NAN FP_NORMAL FP_SUBNORMAL FP_ZERO "
    "FP_INT_DOWNWARD FP_INT_TONEAREST FP_INT_TONEARESTFROMZERO FP_INT_TOWARDZERO FP_INT_UPWARD "
    "FE_ALL_EXCEPT FE_DFL_ENV FE_DIVBYZERO FE_DOWNWARD FE_INEXACT FE_INVALID FE_OVERFLOW "
    "FE_TONEAREST FE_TOWARDZERO FE_UNDERFLOW FE_UPWARD"_l1,
    // places and signals
    "LC_ALL LC_COLLATE LC_CTYPE LC_MESSAGES LC_MONETARY LC_NUMERIC LC_TIME SIGABRT SIGALRM SIGBUS "
    "SIGCHLD SIGCONT SIGFPE SIGHUP SIGILL SIGINT SIGKILL SIGPIPE SIGPOLL SIGPROF SIGQUIT SIGSEGV "
    "SIGSTOP SIGSYS SIGTERM SIGTRAP SIGTSTP SIGTTIN SIGTTOU SIGURG SIGUSR1 SIGUSR2 SIGVTALRM "
    "SIGXCPU SIGXFSZ SIGCLD SIGIO SIGIOT SIGPWR SIGRTMAX SIGRTMIN SIGSTKFLT SIGWINCH "
    "NSIG SA_NOCLDSTOP SIGEMT SIGLOST CLOCK_ALLOWED CLOCK_DISABLED CLOCK_DISALLOWED "
    "CLOCK_ENABLED CLOCK_REALTIME TIMER_ABSTIME HAVE_INITFINI_ARRAY SIG_ATOMIC_MAX SIG_ATOMIC_MIN "
    "SIG_ATOMIC_WIDTH LC_ADDRESS LC_IDENTIFICATION LC_MEASUREMENT "
    "LC_NAME LC_PAPER LC_TELEPHONE SIG_DFL SIG_ERR SIG_IGN SIG_HOLD SIG_BLOCK SIG_UNBLOCK SIG_SETMASK"_l1,
    // errors
    "E2BIG EACCES EADDRINUSE EADDRNOTAVAIL EAFNOSUPPORT EAGAIN EALREADY EBADF EBADMSG EBUSY "
    "ECANCELED ECHILD ECONNABORTED ECONNREFUSED ECONNRESET EDEADLK EDESTADDRREQ EDOM EDQUOT EEXIST "
    "EFAULT EFBIG EHOSTDOWN EHOSTUNREACH EIDRM EILSEQ EINPROGRESS EINTR EINVAL EIO EISCONN EISDIR "
    "ELOOP EMFILE EMLINK EMSGSIZE EMULTIHOP ENAMETOOLONG ENETDOWN ENETRESET ENETUNREACH ENFILE "
    "ENOBUFS ENODATA ENODEV ENOENT ENOEXEC ENOLCK ENOLINK ENOMEM ENOMSG ENOPROTOOPT ENOSPC ENOSR "
    "ENOSTR ENOSYS ENOTCONN ENOTDIR ENOTEMPTY ENOTRECOVERABLE ENOTSOCK ENOTSUP ENOTTY ENXIO "
    "EOPNOTSUPP EOVERFLOW EOWNERDEAD EPERM EPFNOSUPPORT EPIPE EPROTO EPROTONOSUPPORT EPROTOTYPE "
    "ERANGE EROFS ESHUTDOWN ESOCKTNOSUPPORT ESPIPE ESRCH ESTALE ETIME ETIMEDOUT ETOOMANYREFS "
    "ETXTBSY EWOULDBLOCK EXDEV EADV EBADE EBADFD EBADR EBADRQC EBADSLT EBFONT ECHRNG ECOMM "
    "EDEADLOCK EDOTDOT EFTYPE EHWPOISON EISNAM EKEYEXPIRED EKEYREJECTED EKEYREVOKED EL2HLT "
    "EL2NSYNC EL3HLT EL3RST ELIBACC ELIBBAD ELIBEXEC ELIBMAX ELIBSCN ELNRNG EMEDIUMTYPE ENAVAIL "
    "ENOANO ENOCSI ENOKEY ENOMEDIUM ENONET ENOPKG ENOTBLK ENOTNAM ENOTUNIQ EREMCHG EREMOTE "
    "EREMOTEIO ERESTART ERFKILL ESRMNT ESTRPIPE EUCLEAN EUNATCH EUSERS EXFULL"_l1,
    // types
    "FILE clock_t div_t double_t fenv_t fexcept_t float_t fpos_t imaxdiv_t jmp_buf ldiv_t lldiv_t "
    "max_align_t mbstate_t ptrdiff_t sig_atomic_t size_t ssize_t time_t tm timespec va_list "
    "wctrans_t wctype_t wint_t lconv int8_t int16_t int32_t int64_t intmax_t intptr_t uint8_t "
    "uint16_t uint32_t uint64_t uintmax_t uintptr_t int_fast8_t int_fast16_t int_fast32_t "
    "int_fast64_t int_least8_t int_least16_t int_least32_t int_least64_t uint_fast8_t "
    "uint_fast16_t uint_fast32_t uint_fast64_t uint_least8_t uint_least16_t uint_least32_t "
    "uint_least64_t std"_l1,
    // macros with parameters, in one library or another
    "acos acosh asin asinh assert atan atan2 atanh carg cbrt ceil cimag clearerr conj "
    "copysign cos cosh cproj creal erf erfc exp exp2 expm1 fabs fdim feof ferror floor fma "
    "fmax fmin fmod fpclassify frexp getwc getwchar hypot ilogb isalnum isalpha isblank "
    "iscntrl isdigit isfinite isgraph isgreater isgreaterequal isinf isless islessequal "
    "islessgreater islower isnan isnormal isprint ispunct isspace isunordered isupper "
    "isxdigit issubnormal issignaling iscanonical iszero iseqsig kill_dependency ldexp lgamma "
    "llrint llround log log10 log1p log2 logb lrint lround main nearbyint nextafter "
    "nexttoward offsetof pow putwc putwchar remainder remquo rint round scalb scalbln scalbn "
    "setjmp signbit signgam sin sinh sqrt tan tanh tgamma tolower toupper trunc va_arg "
    "va_copy va_end va_start"_l1,
    // what compilers define in their own dialects
    "linux unix i386 arm"_l1,
};

const QSet<QString> &wordSet()
{
    static const QSet<QString> words = [] {
        QSet<QString> set;
        for (const QLatin1String &list : knownWords) {
            const QStringList split = QString(list).split(u' ');
            for (const QString &word : split)
                set.insert(word);
        }
        return set;
    }();
    return words;
}

// "INT32_MAX", "UINT_LEAST8_MAX", "INTPTR_C": limits and constants of the integers.
bool isIntegerMacro(const QString &word)
{
    int at = word.startsWith(u'U') ? 1 : 0;
    if (word.midRef(at, 3) != "INT"_l1)
        return false;
    at += 3;
    for (const QLatin1String &kind : {"_LEAST"_l1, "_FAST"_l1, "PTR"_l1, "MAX"_l1}) {
        if (word.midRef(at).startsWith(kind)) {
            at += kind.size();
            break;
        }
    }
    while (at < word.size() && word.at(at).isDigit())
        ++at;
    const QStringRef end = word.midRef(at);
    return end == "_MAX"_l1 || end == "_MIN"_l1 || end == "_WIDTH"_l1 || end == "_C"_l1;
}

// "PRIu32", "SCNxPTR": texts for formatted input and output.
bool isFormatMacro(const QString &word)
{
    if ((!word.startsWith("PRI"_l1) && !word.startsWith("SCN"_l1)) || word.size() < 5 ||
        !QStringLiteral("diouxXbB").contains(word.at(3)))
        return false;
    QStringRef kind = word.midRef(4);
    if (kind == "MAX"_l1 || kind == "PTR"_l1)
        return true;
    for (const QLatin1String &beginning : {"LEAST"_l1, "FAST"_l1}) {
        if (kind.startsWith(beginning))
            kind = kind.mid(beginning.size());
    }
    return kind == "8"_l1 || kind == "16"_l1 || kind == "32"_l1 || kind == "64"_l1;
}

} // namespace

QString ownName(const SystemMap &map, const QString &name)
{
    return map.prefix + name;
}

QString topModuleName(const SystemMap &map)
{
    return ownName(map, topModule);
}

QString systemName(const SystemMap &map)
{
    return ownName(map, QStringLiteral("Tarvo_ORIX_M1"));
}

QString fileName(const SystemMap &map, QLatin1String suffix)
{
    return ownName(map, "tarvo_orix_m1"_l1 + suffix);
}

QString symbolName(const SystemMap &map, QLatin1String suffix)
{
    return fileName(map, suffix);
}

QString macroName(const SystemMap &map, QLatin1String suffix)
{
    return ownName(map, "TARVO_ORIX_M1"_l1 + suffix);
}

bool isKnownWord(const QString &word)
{
    return wordSet().contains(word) || isIntegerMacro(word) || isFormatMacro(word);
}

UniqueNames::UniqueNames(Qt::CaseSensitivity sensitivity, const UniqueNames *outer)
    : m_sensitivity(sensitivity)
    , m_outer(outer)
{
}

void UniqueNames::reserve(const QString &name)
{
    m_given.insert(key(name));
}

QString UniqueNames::give(const QString &wanted)
{
    QString name = wanted;
    if (!isFree(name))
        name += u'_';
    for (int number = 2; !isFree(name); ++number)
        name = wanted + u'_' + QString::number(number);
    reserve(name);
    return name;
}

QStringList UniqueNames::giveAll(const QStringList &wanted)
{
    QStringList names = wanted;
    QVector<int> others;
    for (int i = 0; i < names.size(); ++i) {
        if (isFree(names.at(i)))
            reserve(names.at(i));
        else
            others.append(i);
    }
    for (const int i : qAsConst(others))
        names[i] = give(names.at(i));
    return names;
}

QString UniqueNames::key(const QString &name) const
{
    if (m_sensitivity == Qt::CaseSensitive)
        return name;
    QString folded = name.toLower();
    while (folded.endsWith(u'_'))
        folded.chop(1);
    return folded;
}

bool UniqueNames::isFree(const QString &name) const
{
    return !isKnownWord(name) && !isGiven(name);
}

bool UniqueNames::isGiven(const QString &name) const
{
    return m_given.contains(key(name)) || (m_outer && m_outer->isGiven(name));
}

QString plainLine(const QString &text)
{
    QString line;
    const QVector<uint> characters = text.toUcs4();
    for (const uint c : characters) {
        const QChar::Category category = QChar::category(c);
        if (category == QChar::Separator_Line || category == QChar::Separator_Paragraph ||
            category == QChar::Other_Control)
            line += u' ';
        else if (QChar::isPrint(c))
            line += QString::fromUcs4(&c, 1);
        else
            line += u'?';
    }
    line.replace("*/"_l1, "* /"_l1);
    return line.replace("/*"_l1, "/ *"_l1).simplified();
}

} // namespace TARVOORIXM1

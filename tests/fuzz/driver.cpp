// Runs a fuzz target without libFuzzer: FUZZ_TARGET [--seconds N] [--runs N] [--seed N] [--dict
// FILE]
// [--artifacts DIR] FILE|FOLDER…
//
// First every file of the corpus as it is, then changed ones: the same sequence for the same seed
// and corpus. The input that ended the program is kept as "crash-<target>" in the folder for
// artifacts. More than a gigabyte of memory in use at the end is a failure too (four with
// sanitizers, which keep what was freed).

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace
{

using Input = std::vector<uint8_t>;

constexpr size_t longestInput = 1 << 16;

#if defined(__SANITIZE_ADDRESS__)
constexpr long mostMemoryKb = 4L << 20;
// The sanitizers report the others themselves, and abort.
constexpr int fatalSignals[] = {SIGABRT};
#else
constexpr long mostMemoryKb = 1L << 20;
constexpr int fatalSignals[] = {SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL};
#endif

// For the signal handler.
const Input *current = nullptr;
char crashFile[4096] = "crash";

void keepInput(int number)
{
    const int file = ::open(crashFile, O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (file >= 0 && current) {
        size_t done = 0;
        while (done < current->size()) {
            const ssize_t count = ::write(file, current->data() + done, current->size() - done);
            if (count <= 0)
                break;
            done += size_t(count);
        }
        ::close(file);
        const char text[] = "The input is kept as ";
        (void)!::write(2, text, sizeof text - 1);
        (void)!::write(2, crashFile, std::strlen(crashFile));
        (void)!::write(2, "\n", 1);
    }
    std::signal(number, SIG_DFL);
    ::raise(number);
}

void watchSignals()
{
    // A stack that overflowed has no room for the handler.
    static char stack[1 << 16];
    stack_t own = {};
    own.ss_sp = stack;
    own.ss_size = sizeof stack;
    ::sigaltstack(&own, nullptr);
    struct sigaction action = {};
    action.sa_handler = keepInput;
    action.sa_flags = SA_ONSTACK;
    for (const int number : fatalSignals)
        ::sigaction(number, &action, nullptr);
}

Input contentsOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return Input(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

// The words of a dictionary as libFuzzer has it: "…" with \\, \" and \xNN.
std::vector<Input> wordsOf(const std::string &path)
{
    std::vector<Input> words;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        const size_t first = line.find('"');
        const size_t last = line.rfind('"');
        if (line.empty() || line[0] == '#' || first == std::string::npos || last <= first)
            continue;
        Input word;
        for (size_t i = first + 1; i < last; ++i) {
            if (line[i] == '\\' && line[i + 1] == 'x') {
                word.push_back(uint8_t(std::stoi(line.substr(i + 2, 2), nullptr, 16)));
                i += 3;
            } else {
                word.push_back(uint8_t(line[i] == '\\' ? line[++i] : line[i]));
            }
        }
        words.push_back(word);
    }
    return words;
}

class Mutator
{
public:
    Mutator(uint64_t seed, const std::vector<Input> &corpus, const std::vector<Input> &words)
        : m_random(seed)
        , m_corpus(corpus)
        , m_words(words)
    {
    }

    Input next()
    {
        Input input = m_corpus[below(m_corpus.size())];
        for (size_t changes = 1 + below(4); changes > 0; --changes)
            change(&input);
        if (input.size() > longestInput)
            input.resize(longestInput);
        return input;
    }

private:
    size_t below(size_t limit) { return limit == 0 ? 0 : size_t(m_random() % limit); }
    uint8_t byte() { return uint8_t(m_random()); }

    void insert(Input *input, const Input &what, size_t times)
    {
        const size_t at = below(input->size() + 1);
        times = std::min(times, longestInput / std::max<size_t>(what.size(), 1));
        Input all;
        for (; times > 0; --times)
            all.insert(all.end(), what.begin(), what.end());
        input->insert(input->begin() + long(at), all.begin(), all.end());
    }

    Input part(const Input &from)
    {
        const size_t first = below(from.size());
        const size_t length = 1 + below(std::min<size_t>(from.size() - first, 200));
        return from.empty() ? Input()
                            : Input(from.begin() + long(first),
                                    from.begin() + long(std::min(first + length, from.size())));
    }

    void change(Input *input)
    {
        switch (below(9)) {
        case 0: // a bit
            if (!input->empty())
                (*input)[below(input->size())] ^= uint8_t(1 << below(8));
            break;
        case 1: // a byte
            if (!input->empty())
                (*input)[below(input->size())] = byte();
            break;
        case 2: // a part is lost
            if (!input->empty()) {
                const size_t first = below(input->size());
                const size_t length = std::min(1 + below(30), input->size() - first);
                input->erase(input->begin() + long(first), input->begin() + long(first + length));
            }
            break;
        case 3: // the end is lost
            input->resize(below(input->size() + 1));
            break;
        case 4: // bytes come in
            insert(input, {byte()}, 1 + below(4));
            break;
        case 5: // a part once more, or far more often
            insert(input, part(*input), below(20) == 0 ? 1 + below(3000) : 1 + below(3));
            break;
        case 6: // a part of another file
            insert(input, part(m_corpus[below(m_corpus.size())]), 1);
            break;
        default: // a word
            if (!m_words.empty())
                insert(input, m_words[below(m_words.size())], below(20) == 0 ? 1 + below(3000) : 1);
            break;
        }
    }

    std::mt19937_64 m_random;
    const std::vector<Input> &m_corpus;
    const std::vector<Input> &m_words;
};

void run(const Input &input)
{
    current = &input;
    // A copy of its own shows what reads behind the end.
    const Input exact(input.begin(), input.end());
    LLVMFuzzerTestOneInput(exact.data(), exact.size());
    current = nullptr;
}

int usage(const char *program)
{
    std::fprintf(stderr,
                 "usage: %s [--seconds N] [--runs N] [--seed N] [--dict FILE] [--artifacts DIR] "
                 "FILE|FOLDER…\n",
                 program);
    return 2;
}

} // namespace

int main(int argc, char *argv[])
{
    double seconds = 2;
    unsigned long runs = ~0UL;
    uint64_t seed = 1;
    std::string dictionary;
    std::string artifacts = ".";
    std::vector<Input> corpus;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument.rfind("--", 0) == 0) {
            if (++i == argc)
                return usage(argv[0]);
            if (argument == "--seconds")
                seconds = std::atof(argv[i]);
            else if (argument == "--runs")
                runs = std::strtoul(argv[i], nullptr, 10);
            else if (argument == "--seed")
                seed = std::strtoull(argv[i], nullptr, 10);
            else if (argument == "--dict")
                dictionary = argv[i];
            else if (argument == "--artifacts")
                artifacts = argv[i];
            else
                return usage(argv[0]);
        } else if (std::filesystem::is_directory(argument)) {
            std::vector<std::filesystem::path> files;
            for (const auto &entry : std::filesystem::directory_iterator(argument))
                files.push_back(entry.path());
            std::sort(files.begin(), files.end());
            for (const auto &file : files)
                corpus.push_back(contentsOf(file));
        } else {
            corpus.push_back(contentsOf(argument));
        }
    }
    if (corpus.empty()) {
        std::fprintf(stderr, "%s: no corpus\n", argv[0]);
        return 2;
    }
    const std::string name = std::filesystem::path(argv[0]).filename().string();
    std::snprintf(crashFile, sizeof crashFile, "%s/crash-%s", artifacts.c_str(), name.c_str());
    watchSignals();

    const std::vector<Input> words = wordsOf(dictionary);
    run({});
    for (const Input &input : corpus)
        run(input);
    Mutator mutator(seed, corpus, words);
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    unsigned long done = 0;
    for (; done < runs && std::chrono::steady_clock::now() < end; ++done)
        run(mutator.next());

    struct rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    std::printf("%s: %zu files, %lu changed inputs, seed %llu, %ld MB\n", name.c_str(),
                corpus.size(), done, static_cast<unsigned long long>(seed), usage.ru_maxrss >> 10);
    if (usage.ru_maxrss > mostMemoryKb) {
        std::fprintf(stderr, "%s: too much memory\n", name.c_str());
        return 1;
    }
    return 0;
}

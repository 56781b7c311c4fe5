#include "fresh.h"

#include "fit.h"

#include <config/latin1literal.h>
#include <config/optionkeys.h>
#include <config/optionvalue.h>
#include <estimate/estimate.h>
#include <rules/devicerules.h>
#include <rules/randomoptions.h>
#include <rules/retarget.h>
#include <rules/tcmsizes.h>
#include <utils/fileutils.h>

#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>
#include <cctype>
#include <random>

using namespace TARVOORIXM1;

namespace
{

constexpr auto topName = "Tarvo_ORIX_M1_Top"_l1;

QJsonObject differences(const OptionMap &from, const OptionMap &to)
{
    QJsonObject result;
    for (auto it = to.begin(); it != to.end(); ++it) {
        if (!from.contains(it.key()) || from.value(it.key()) != it.value())
            result.insert(it.key(), QJsonValue::fromVariant(it.value()));
    }
    for (auto it = from.begin(); it != from.end(); ++it) {
        if (!to.contains(it.key()))
            result.insert(it.key(), QJsonValue::Null);
    }
    return result;
}

OptionMap changed(const OptionMap &from, const QJsonObject &differences)
{
    OptionMap result = from;
    const OptionMap read = optionsFrom(differences);
    for (auto it = differences.begin(); it != differences.end(); ++it) {
        if (it.value().isNull())
            result.remove(it.key());
        else
            result.insert(it.key(), read.value(it.key()));
    }
    return result;
}

// The memories of a device from lots that are the same for all: the first lot that the device
// allows counts, so that each allowed one is as likely as another.
void redrawMemories(const QString &device, std::mt19937_64 lots, OptionMap *options)
{
    const bool instructionsOutside = lots() % 4 == 0 || isInstructionMemoryExternalOnly(device);
    const bool dataOutside = lots() % 4 == 0;
    options->insert(Key::internalInstructionMemory, !instructionsOutside);
    options->insert(Key::externalInstructionMemory, instructionsOutside);
    options->insert(Key::internalDataMemory, !dataOutside);
    options->insert(Key::externalDataMemory, dataOutside);
    const TcmSizes sizes = tcmSizes(device);
    if (sizes.full.isEmpty())
        return;
    int itcm = 0;
    int dtcm = 0;
    do {
        itcm = int(lots() % 10);
        dtcm = int(lots() % 10);
    } while (itcm >= sizes.full.size() || dtcm >= sizes.full.size() ||
             !tcmFit(sizes, itcm, dtcm).both());
    options->insert(Key::itcmSize, itcm);
    options->insert(Key::dtcmSize, dtcm);
}

bool isNameCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '$' || c == '`';
}

// Names, texts and single characters; what only lays out is left out.
QVector<QByteArray> tokensOf(const QByteArray &text)
{
    QVector<QByteArray> tokens;
    for (int i = 0; i < text.size();) {
        const int start = i;
        if (text.mid(i, 2) == "/*") {
            const int end = text.indexOf("*/", i + 2);
            i = end < 0 ? text.size() : end + 2;
            continue;
        }
        if (std::isspace(uchar(text[i]))) {
            ++i;
            continue;
        }
        if (text[i] == '"') {
            for (++i; i < text.size() && text[i] != '"'; ++i)
                i += text[i] == '\\' ? 1 : 0;
            ++i;
        } else if (isNameCharacter(text[i])) {
            while (i < text.size() && isNameCharacter(text[i]))
                ++i;
        } else {
            ++i;
        }
        const QByteArray token = text.mid(start, i - start);
        if (token == "`file_push") {
            // With the path behind it.
            i = text.indexOf('\n', i);
            i = i < 0 ? text.size() : i;
        } else if (token != "`file_pop") {
            tokens << token;
        }
    }
    return tokens;
}

// A module, with the attributes before it, or a statement outside of modules.
struct Piece {
    QByteArray name; // of the module or the parameter
    QVector<QByteArray> tokens;
};

QVector<Piece> piecesOf(const QVector<QByteArray> &tokens)
{
    QVector<Piece> pieces;
    Piece piece;
    bool isModule = false;
    for (int i = 0; i < tokens.size(); ++i) {
        const QByteArray &token = tokens.at(i);
        piece.tokens << token;
        if (token == "module" && !isModule) {
            isModule = true;
            piece.name = tokens.value(i + 1);
        } else if (token == "=" && !isModule) {
            piece.name = tokens.value(i - 1);
        }
        if (isModule ? token == "endmodule" : token == ";") {
            pieces << piece;
            piece = Piece();
            isModule = false;
        }
    }
    return pieces;
}

// The index behind the bracket that closes the one at `open`.
int behindBracket(const QVector<QByteArray> &tokens, int open)
{
    int depth = 0;
    int i = open;
    for (; i < tokens.size(); ++i) {
        depth += tokens.at(i) == "(" ? 1 : 0;
        depth -= tokens.at(i) == ")" ? 1 : 0;
        if (depth == 0)
            return i + 1;
    }
    return i;
}

// Takes the value out of the declaration of a parameter that its module never reads, and returns
// the parameter's name; null where there is none.
QByteArray takeUnreadParameter(Piece *module)
{
    QVector<QByteArray> &tokens = module->tokens;
    for (int i = 0; i < tokens.size(); ++i) {
        const int equals = tokens.at(i) == "parameter" ? tokens.indexOf("=", i) : -1;
        if (equals < 0 || tokens.count(tokens.at(equals - 1)) > 1)
            continue;
        int end = equals + 1;
        while (end < tokens.size() && tokens.at(end) != "," && tokens.at(end) != ";" &&
               tokens.at(end) != ")")
            end = tokens.at(end) == "(" ? behindBracket(tokens, end) : end + 1;
        const QByteArray name = tokens.at(equals - 1);
        tokens.remove(i, end - i);
        return name;
    }
    return {};
}

// Takes `parameter` out of the parameters that `piece` gives its instances of `module`.
void takeConnection(const QByteArray &module, const QByteArray &parameter, Piece *piece)
{
    QVector<QByteArray> &tokens = piece->tokens;
    for (int i = 0; i + 2 < tokens.size(); ++i) {
        if (tokens.at(i) != module || tokens.at(i + 1) != "#" || tokens.at(i + 2) != "(")
            continue;
        for (int j = i + 3; j < behindBracket(tokens, i + 2); ++j) {
            if (tokens.at(j) == "." && tokens.value(j + 1) == parameter)
                tokens.remove(j, behindBracket(tokens, j + 2) - j);
        }
    }
}

// What a module is told and never reads is nothing to its netlist.
void takeUnreadParameters(QVector<Piece> *pieces)
{
    for (bool changes = true; changes;) {
        changes = false;
        for (int i = 0; i < pieces->size(); ++i) {
            if (!pieces->at(i).tokens.contains("endmodule"))
                continue;
            const QByteArray parameter = takeUnreadParameter(&(*pieces)[i]);
            if (parameter.isNull())
                continue;
            changes = true;
            for (Piece &piece : *pieces)
                takeConnection(pieces->at(i).name, parameter, &piece);
        }
    }
}

// The name of a black box is only a label: those with the same ports and parameters get the same.
void labelBlackBoxes(QVector<Piece> *pieces)
{
    QHash<QByteArray, QByteArray> labels;
    for (const Piece &piece : qAsConst(*pieces)) {
        if (piece.tokens.mid(0, 3) != QVector<QByteArray>{"(", "*", "blackbox"})
            continue;
        QCryptographicHash ports(QCryptographicHash::Sha256);
        for (const QByteArray &token : piece.tokens)
            ports.addData((token == piece.name ? QByteArray() : token) + '\n');
        labels.insert(piece.name, "black box " + ports.result().toHex());
    }
    for (Piece &piece : *pieces) {
        piece.name = labels.value(piece.name, piece.name);
        for (QByteArray &token : piece.tokens)
            token = labels.value(token, token);
    }
}

// What tells a plan's sources from another's of the same RTL.
QByteArray inputOf(const GenerationPlan &plan)
{
    QStringList lines;
    for (const IncludeFile &file : plan.includeFiles)
        lines << file.name << file.lines;
    for (const QString &source : plan.sources)
        lines << (source.startsWith(plan.folder) ? QFileInfo(source).fileName() : source);
    return lines.join(u'\n').toUtf8();
}

} // namespace

int FreshMeasurements::countOf(int seed) const
{
    int count = 0;
    for (const FreshMeasurement &one : list)
        count += one.seed == seed ? one.drawn.size() : 0;
    return count;
}

bool FreshMeasurements::contains(int seed, const QString &digest) const
{
    return std::any_of(list.begin(), list.end(), [&](const FreshMeasurement &one) {
        return one.seed == seed && one.digest == digest;
    });
}

Utils::Result<FreshMeasurements> readFresh(const QString &path)
{
    QByteArray text;
    QString error;
    if (!Utils::FileUtils::readFile(path, &text, &error))
        return Utils::Failure{error};
    FreshMeasurements result;
    int number = 0;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        ++number;
        if (line.isEmpty())
            continue;
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        if (number == 1) {
            result.rtl = object.value("rtl"_l1).toString();
            result.synthesis = object.value("synthesis"_l1).toString();
            continue;
        }
        if (object.isEmpty()) {
            if (number == lines.size())
                continue;
            return Utils::Failure{path + u':' + QString::number(number) + ": no measurement."_l1};
        }
        FreshMeasurement one;
        one.seed = object.value("seed"_l1).toInt();
        one.digest = object.value("digest"_l1).toString();
        one.again = object.value("again"_l1).toString();
        one.drawn.append({object.value("device"_l1).toString(),
                          optionsFrom(object.value("options"_l1).toObject())});
        const OptionMap first = one.drawn.first().options;
        const QJsonObject others = object.value("others"_l1).toObject();
        for (auto it = others.begin(); it != others.end(); ++it)
            one.drawn.append({it.key(), changed(first, it.value().toObject())});
        const QJsonObject used = object.value("used"_l1).toObject();
        for (auto it = used.begin(); it != used.end(); ++it)
            one.used.insert(it.key(), it.value().toInt());
        one.blackBoxes = object.value("blackBoxes"_l1).toVariant().toStringList();
        result.list.append(one);
    }
    return result;
}

QByteArray lineOf(const FreshMeasurement &measurement)
{
    QJsonObject used;
    for (auto it = measurement.used.begin(); it != measurement.used.end(); ++it)
        used.insert(it.key(), it.value());
    const Drawn first = measurement.drawn.value(0);
    QJsonObject others;
    for (int i = 1; i < measurement.drawn.size(); ++i)
        others.insert(measurement.drawn.at(i).device,
                      differences(first.options, measurement.drawn.at(i).options));
    QJsonObject object{
        {QStringLiteral("seed"), measurement.seed},
        {QStringLiteral("digest"), measurement.digest},
        {QStringLiteral("device"), first.device},
        {QStringLiteral("options"), QJsonObject::fromVariantMap(first.options)},
        {QStringLiteral("others"), others},
        {QStringLiteral("used"), used},
        {QStringLiteral("blackBoxes"), QJsonValue::fromVariant(measurement.blackBoxes)}};
    if (!measurement.again.isEmpty())
        object.insert(QStringLiteral("again"), measurement.again);
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QVector<Drawn> drawForEachSeries(int seed, const DEV::DeviceDb &devices)
{
    QStringList series;
    QHash<QString, QVector<DEV::DeviceArg>> bySeries;
    const QList<DEV::DeviceArg> all = devices.devices();
    for (const DEV::DeviceArg &device : all) {
        if (!bySeries.contains(device.series()))
            series << device.series();
        bySeries[device.series()] << device;
    }
    std::mt19937_64 lots(quint64(seed) * 7919);
    const quint64 which = lots();
    std::mt19937_64 order = lots;
    for (int i = series.size() - 1; i > 0; --i)
        std::swap(series[i], series[int(order() % quint64(i + 1))]);
    QVector<Drawn> result;
    for (const QString &name : qAsConst(series)) {
        const QVector<DEV::DeviceArg> &own = bySeries[name];
        const DEV::DeviceArg &device = own.at(int(which % quint64(own.size())));
        OptionMap options = randomOptions(quint64(seed), device);
        redrawMemories(device.device(), lots, &options);
        for (const Drawn &drawn : qAsConst(result)) {
            const Retargeted same =
                retarget(drawn.options, devices.findDevice(drawn.device), device);
            if (same.losses.isEmpty()) {
                options = same.options;
                break;
            }
        }
        result.append({device.id(), options});
    }
    return result;
}

Utils::Result<QString> textDigest(const DEV::DeviceArg &device, const OptionMap &options,
                                  QHash<QByteArray, QString> *known)
{
    const QTemporaryDir folder;
    const Utils::Result<GenerationPlan> plan = writtenPlan(device, options, folder.path());
    if (!plan)
        return Utils::Failure{plan.reason()};
    const QByteArray input = inputOf(*plan);
    if (known->contains(input))
        return known->value(input);
    QStringList folders = {plan->folder};
    for (const QString &source : plan->sources)
        folders << QFileInfo(source).path();
    folders.removeDuplicates();
    QString script;
    for (const QString &source : plan->sources) {
        script += "read_verilog -defer -ppdump"_l1;
        for (const QString &include : qAsConst(folders))
            script += " -I"_l1 + include;
        script += u' ' + source + u'\n';
    }
    const QString scriptPath = folder.filePath(QStringLiteral("dump.ys"));
    QString error;
    if (!Utils::FileUtils::writeFile(scriptPath, script.toUtf8(), &error))
        return Utils::Failure{error};
    QProcess yosys;
    yosys.start(QStringLiteral("yosys"),
                {QStringLiteral("-Q"), QStringLiteral("-T"), QStringLiteral("-s"), scriptPath});
    if (!yosys.waitForFinished(-1) || yosys.exitStatus() != QProcess::NormalExit ||
        yosys.exitCode() != 0)
        return Utils::Failure{"Yosys does not read the sources: "_l1 + yosys.errorString() + u' ' +
                              QString::fromUtf8(yosys.readAllStandardError())};
    const QByteArray output = yosys.readAllStandardOutput();
    constexpr char begin[] = "-- Verilog code after preprocessor --\n";
    constexpr char end[] = "-- END OF DUMP --\n";
    QVector<QByteArray> tokens;
    int dumps = 0;
    for (int at = output.indexOf(begin); at >= 0; at = output.indexOf(begin, at)) {
        at += int(sizeof(begin)) - 1;
        const int to = output.indexOf(end, at);
        if (to < 0)
            break;
        tokens += tokensOf(output.mid(at, to - at));
        ++dumps;
    }
    if (dumps != plan->sources.size())
        return Utils::Failure{"Yosys told of "_l1 + QString::number(dumps) + " of "_l1 +
                              QString::number(plan->sources.size()) + " sources."_l1};

    QVector<Piece> pieces = piecesOf(tokens);
    takeUnreadParameters(&pieces);
    labelBlackBoxes(&pieces);
    QSet<QByteArray> named = {QByteArray(topName.data(), topName.size())};
    QVector<bool> isReached(pieces.size(), false);
    for (bool grows = true; grows;) {
        grows = false;
        for (int i = 0; i < pieces.size(); ++i) {
            const Piece &piece = pieces.at(i);
            // What has no name that could be asked for belongs to everything.
            if (isReached.at(i) || (!piece.name.isEmpty() && !named.contains(piece.name)))
                continue;
            isReached[i] = true;
            grows = true;
            for (const QByteArray &token : piece.tokens)
                named.insert(token);
        }
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (int i = 0; i < pieces.size(); ++i) {
        if (!isReached.at(i))
            continue;
        for (const QByteArray &token : pieces.at(i).tokens)
            hash.addData(token + '\n');
    }
    return *known->insert(input, QString::fromLatin1(hash.result().toHex()));
}

QVector<SeriesShare> sharesOf(const FreshMeasurements &fresh, const DEV::DeviceDb &devices,
                              const EstimateTable &table)
{
    QVector<SeriesShare> shares;
    const QVector<int> none(table.resources.size(), 0);
    const auto shareOf = [&](const QString &series) -> SeriesShare & {
        const auto found =
            std::find_if(shares.begin(), shares.end(),
                         [&](const SeriesShare &share) { return share.series == series; });
        if (found != shares.end())
            return *found;
        shares.append({series, 0, none, QVector<double>(table.resources.size(), 0), {}});
        return shares.last();
    };
    SeriesShare whole{QString(), 0, none, QVector<double>(table.resources.size(), 0), {}};
    const auto count = [&](SeriesShare &share, const FreshMeasurement &one, const Drawn &drawn) {
        ++share.count;
        const auto result = estimate(drawn.options, devices.findDevice(drawn.device), table);
        if (!result || !result->unmeasured.isEmpty()) {
            share.misses << "seed "_l1 + QString::number(one.seed) + " for "_l1 + drawn.device +
                                ": no estimate. "_l1 + result.reason();
            return;
        }
        for (int i = 0; i < table.resources.size(); ++i) {
            const QString &resource = table.resources.at(i);
            const int used = one.used.value(resource, -1);
            const int value = result->resources.at(i).value;
            const double miss = missOf(resource, value, used);
            share.worst[i] = std::max(share.worst.at(i), miss);
            share.within[i] += miss <= 1 ? 1 : 0;
            if (miss > 1)
                share.misses << QStringLiteral("seed %1 for %2: %3 %4 instead of %5")
                                    .arg(QString::number(one.seed), drawn.device, resource,
                                         QString::number(value), QString::number(used));
        }
    };
    for (const FreshMeasurement &one : fresh.list) {
        for (const Drawn &drawn : one.drawn)
            count(shareOf(devices.findDevice(drawn.device).series()), one, drawn);
        if (!one.drawn.isEmpty())
            count(whole, one, one.drawn.first());
    }
    std::sort(shares.begin(), shares.end(),
              [](const SeriesShare &a, const SeriesShare &b) { return a.series < b.series; });
    shares.append(whole);
    return shares;
}

QString shareText(const QVector<SeriesShare> &shares, const EstimateTable &table)
{
    QString text = QStringLiteral("%1 %2").arg(QStringLiteral("series"), -10).arg("number"_l1, 7);
    for (const QString &resource : table.resources)
        text += QStringLiteral("  %1").arg(resource, 18);
    text += "\nshare within the promise, and the worst in tolerances that are promised\n"_l1;
    for (const SeriesShare &share : shares) {
        text += QStringLiteral("%1 %2")
                    .arg(share.series.isEmpty() ? QStringLiteral("netlists") : share.series, -10)
                    .arg(share.count, 7);
        for (int i = 0; i < table.resources.size(); ++i)
            text +=
                QStringLiteral("  %1 % %2")
                    .arg(share.count ? 100.0 * share.within.at(i) / share.count : 0.0, 9, 'f', 1)
                    .arg(share.worst.at(i), 6, 'f', 2);
        text += u'\n';
    }
    return text;
}

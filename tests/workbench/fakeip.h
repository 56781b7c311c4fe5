#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QVariantMap>

#include <stdexcept>

// The dialog of an IP with lamps, and the root of its plug-in, which tell all that a host may ask.
namespace TestSupport
{

class LampDialog : public QDialog
{
    Q_OBJECT

public:
    LampDialog()
        : edit(new QLineEdit)
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(edit);
        setWindowTitle(QStringLiteral("Lamps"));
        resize(500, 400);
    }

    Q_INVOKABLE QVariantMap configuration() const
    {
        if (isBroken)
            throw std::runtime_error("the lamp is hot");
        return {{QStringLiteral("file"), QStringLiteral("/nowhere/lamps.ipc")},
                {QStringLiteral("header"),
                 QVariantMap{{QStringLiteral("type"), QStringLiteral("fake.lamps")}}},
                {QStringLiteral("options"), QVariantMap{{QStringLiteral("Lamps"), lamps}}}};
    }

    Q_INVOKABLE QVariantList steps() const
    {
        QVariantList list;
        for (const QString &name : names)
            list.append(QVariantMap{{QStringLiteral("name"), name}});
        return list;
    }
    Q_INVOKABLE int currentStep() const { return current; }
    Q_INVOKABLE bool goToStep(int count)
    {
        if (isStuck || count < 0 || count > names.size())
            return false;
        current = count;
        Q_EMIT configurationChanged();
        return true;
    }

    void setLamps(int number)
    {
        lamps = number;
        Q_EMIT configurationChanged();
    }

    int lamps = 3;
    QStringList names{QStringLiteral("First lamp on"), QStringLiteral("Second lamp on"),
                      QStringLiteral("Third lamp on")};
    int current = 2;
    bool isBroken = false;
    bool isStuck = false;
    QLineEdit *edit;

Q_SIGNALS:
    void configurationChanged();
    void pointedAt(const QString &block);
};

class LampRoot : public QObject
{
    Q_OBJECT

public:
    static QVariantMap reading(const char *resource, int value, int low, int high, int available)
    {
        return {{QStringLiteral("resource"), QString::fromLatin1(resource)},
                {QStringLiteral("value"), value},
                {QStringLiteral("low"), low},
                {QStringLiteral("high"), high},
                {QStringLiteral("available"), available}};
    }

    // A lamp takes 100 LUTs of 1000, more or less 5 %.
    static QVariantMap usual(int lamps)
    {
        const auto share = [](const char *resource, int value) {
            return QVariantMap{{QStringLiteral("resource"), QString::fromLatin1(resource)},
                               {QStringLiteral("value"), value}};
        };
        return {
            {QStringLiteral("error"), QString()},
            {QStringLiteral("resources"),
             QVariantList{reading("LUT4", 100 * lamps, 95 * lamps, 105 * lamps, 1000),
                          reading("Flip-flops", 50 * lamps, 48 * lamps, 52 * lamps, 2000),
                          reading("Carry", 8 * lamps, 8 * lamps, 8 * lamps, 500),
                          reading("Tri-state drivers", lamps, lamps, lamps, -1)}},
            {QStringLiteral("pins"),
             QVariantMap{{QStringLiteral("used"), 4 * lamps}, {QStringLiteral("available"), 40}}},
            {QStringLiteral("blocks"),
             QVariantList{QVariantMap{{QStringLiteral("block"), QStringLiteral("Bulb")},
                                      {QStringLiteral("resources"),
                                       QVariantList{share("LUT4", 80), share("Flip-flops", 40)}}}}},
            {QStringLiteral("blackBoxes"),
             QVariantList{
                 QVariantMap{{QStringLiteral("cell"), QStringLiteral("LampCore")},
                             {QStringLiteral("count"), 1},
                             {QStringLiteral("note"), QStringLiteral("from its supplier")}}}}};
    }

    Q_INVOKABLE QVariantMap estimate(const QVariantMap &configuration) const
    {
        ++asked;
        if (isBroken)
            throw std::runtime_error("the lamp is hot");
        if (!answer.isEmpty())
            return answer;
        return usual(configuration.value(QStringLiteral("options"))
                         .toMap()
                         .value(QStringLiteral("Lamps"))
                         .toInt());
    }

    Q_INVOKABLE QVariantMap measureCommand(const QVariantMap &configuration) const
    {
        const QByteArray lamps = configuration.value(QStringLiteral("options"))
                                     .toMap()
                                     .value(QStringLiteral("Lamps"))
                                     .toByteArray();
        QVariantMap command{
            {QStringLiteral("error"), QString()},
            {QStringLiteral("program"), QStringLiteral(TARVO_FAKE_TOOLS "/measurer/measure")},
            {QStringLiteral("arguments"), QStringList{way, QStringLiteral("lamps.ipc")}},
            {QStringLiteral("file"), QStringLiteral("lamps.ipc")},
            {QStringLiteral("configuration"), QByteArray("[Config]\nLamps=" + lamps + "\n")}};
        for (auto it = otherwise.begin(); it != otherwise.end(); ++it)
            command.insert(it.key(), it.value());
        return command;
    }

    mutable int asked = 0;
    bool isBroken = false;
    QVariantMap answer; // to be given instead of the usual one
    QString way = QStringLiteral("count");
    QVariantMap otherwise; // in the command
};

} // namespace TestSupport

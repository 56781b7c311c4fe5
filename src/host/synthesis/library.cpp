#include "library.h"

#include "verilogscan.h"

#include <QFile>

namespace Synthesis
{

namespace
{

struct Model {
    QByteArray name;
    QByteArray text;
};

// Blocks are parted by an empty line before a comment; the first block is the comment of the file.
QVector<Model> readModels()
{
    const QByteArray text = Library::file(QStringLiteral("primitives.v"));
    QVector<Model> models;
    for (int from = text.indexOf("\n\n//"); from >= 0;) {
        const int end = text.indexOf("\n\n//", from + 1);
        const QByteArray block = text.mid(from + 2, end < 0 ? -1 : end - from - 1);
        const VerilogOutline outline = scanVerilog(block);
        Q_ASSERT(outline.complete && outline.modules.size() == 1);
        models << Model{outline.modules.first().name, block};
        from = end;
    }
    return models;
}

const QVector<Model> &models()
{
    static const QVector<Model> all = readModels();
    return all;
}

} // namespace

QByteArray Library::file(const QString &name)
{
    QFile file(QLatin1String(":/tarvo/synthesis/") + name);
    const bool opened = file.open(QIODevice::ReadOnly);
    Q_ASSERT(opened);
    Q_UNUSED(opened)
    return file.readAll();
}

QByteArrayList Library::primitives()
{
    QByteArrayList names;
    for (const Model &model : models())
        names << model.name;
    return names;
}

QByteArray Library::model(const QByteArray &primitive)
{
    for (const Model &model : models()) {
        if (model.name == primitive)
            return model.text;
    }
    return {};
}

} // namespace Synthesis

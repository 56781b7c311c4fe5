#include "library.h"

#include "languages.h"
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
QByteArrayList blocksOf(const QByteArray &text, const QByteArray &comment)
{
    QByteArrayList blocks;
    const QByteArray start = "\n\n" + comment;
    for (int from = text.indexOf(start); from >= 0;) {
        const int end = text.indexOf(start, from + 1);
        blocks << text.mid(from + 2, end < 0 ? -1 : end - from - 1);
        from = end;
    }
    return blocks;
}

QVector<Model> readModels()
{
    QVector<Model> models;
    const QByteArrayList blocks =
        blocksOf(Library::file(QLatin1String(languageRow(Language::Verilog).primitives)), "//");
    for (const QByteArray &block : blocks) {
        const VerilogOutline outline = scanVerilog(block);
        Q_ASSERT(outline.complete && outline.modules.size() == 1);
        models << Model{outline.modules.first().name, block};
    }
    return models;
}

// The package first, under an empty name.
QVector<Model> readVhdlModels()
{
    QVector<Model> models;
    const QByteArrayList blocks =
        blocksOf(Library::file(QLatin1String(languageRow(Language::Vhdl).primitives)), "--");
    for (const QByteArray &block : blocks) {
        const int at = block.indexOf("\nentity ");
        const int name = at + int(qstrlen("\nentity "));
        models << Model{at < 0 ? QByteArray() : block.mid(name, block.indexOf(' ', name) - name),
                        block};
    }
    return models;
}

QByteArray textOf(const QVector<Model> &models, const QByteArray &name)
{
    for (const Model &model : models) {
        if (model.name == name)
            return model.text;
    }
    return {};
}

const QVector<Model> &vhdlModels()
{
    static const QVector<Model> all = readVhdlModels();
    return all;
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
    return textOf(models(), primitive);
}

QByteArray Library::vhdlPackage()
{
    return textOf(vhdlModels(), {});
}

QByteArray Library::vhdlModel(const QByteArray &primitive)
{
    return primitive.isEmpty() ? QByteArray() : textOf(vhdlModels(), primitive);
}

QByteArray Library::vhdlComponent(const QByteArray &primitive)
{
    const QByteArray entity = "\nentity " + primitive + " is\n";
    const QByteArray end = "end entity;";
    const QByteArray text = vhdlModel(primitive);
    const int from = text.indexOf(entity);
    if (from < 0)
        return {};
    const int body = from + entity.size();
    return "component " + primitive + '\n' + text.mid(body, text.indexOf(end, body) - body) +
           "end component;\n";
}

} // namespace Synthesis

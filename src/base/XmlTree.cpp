#include "base/XmlTree.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(XmlTree)
};
} // namespace

namespace tabo::xml {

const Node *Node::child(QStringView n) const
{
    for (const auto &c : children)
        if (c->name == n)
            return c.get();
    return nullptr;
}

QList<const Node *> Node::all(QStringView n) const
{
    QList<const Node *> out;
    for (const auto &c : children)
        if (c->name == n)
            out << c.get();
    return out;
}

const Node *Node::at(QStringView path) const
{
    const Node *n = this;
    for (QStringView step : path.split(u'/')) {
        n = n->child(step);
        if (!n)
            return nullptr;
    }
    return n;
}

QString Node::value(QStringView path) const
{
    const Node *n = at(path);
    return n ? n->text.trimmed() : QString();
}

Result<Tree> parse(const QByteArray &data, int maxDepth, const Refusals &refusals)
{
    QXmlStreamReader reader(data);
    Tree tree;
    std::unique_ptr<Node> root;
    std::vector<Node *> open;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            return Error::file(refusals.dtd);
        case QXmlStreamReader::StartElement: {
            auto node = std::make_unique<Node>();
            node->name = reader.name().toString();
            for (const QXmlStreamAttribute &a : reader.attributes())
                node->attributes.insert(a.name().toString(), a.value().toString());
            Node *raw = node.get();
            if (open.empty()) {
                tree.rootNamespace = reader.namespaceUri().toString();
                root = std::move(node);
            } else {
                open.back()->children.push_back(std::move(node));
            }
            open.push_back(raw);
            if (int(open.size()) > maxDepth)
                return Error::file(refusals.tooDeep);
            break;
        }
        case QXmlStreamReader::EndElement:
            open.pop_back();
            break;
        case QXmlStreamReader::Characters:
            if (!open.empty())
                open.back()->text += reader.text();
            break;
        default:
            break;
        }
    }
    if (reader.hasError() || !root) {
        return Error::file(Tr::tr("The file is not well-formed XML (line %1: %2).")
                               .arg(reader.lineNumber())
                               .arg(reader.errorString()));
    }
    tree.root = std::move(root);
    return tree;
}

} // namespace tabo::xml

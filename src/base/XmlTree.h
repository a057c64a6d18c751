#pragma once

#include "base/Result.h"

#include <QHash>
#include <QList>
#include <QString>

#include <memory>
#include <vector>

namespace tabo::xml {

// An XML document as a tree of elements by local name: the readers of files
// from outside (e-invoices, bank statements) look things up by path instead
// of following the stream.
struct Node
{
    QString name;
    QString text;
    QHash<QString, QString> attributes;
    std::vector<std::unique_ptr<Node>> children;

    const Node *child(QStringView n) const;
    QList<const Node *> all(QStringView n) const;
    // "A/B/C": the first match of each step; nullptr when absent.
    const Node *at(QStringView path) const;
    // The trimmed text at `path`; empty when absent.
    QString value(QStringView path) const;
};

struct Tree
{
    std::shared_ptr<Node> root;
    QString rootNamespace;
};

// What a refusal says, in the words of the kind of file the caller reads.
struct Refusals
{
    QString dtd; // the file declares a DTD (entities expand or fetch more than it holds)
    QString tooDeep; // elements nested more deeply than `maxDepth`
};

// Parses `data`, refusing a DTD, nesting deeper than `maxDepth` and
// anything not well-formed.
Result<Tree> parse(const QByteArray &data, int maxDepth, const Refusals &refusals);

} // namespace tabo::xml

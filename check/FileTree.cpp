#include "check/FileTree.h"

#include "base/Files.h"
#include "base/PathText.h"

#include <algorithm>
#include <filesystem>

namespace dravolin::check {

namespace {

namespace fs = std::filesystem;

QString below(const QString &folder, const QString &name)
{
    return folder.isEmpty() ? name : joinPath(folder, name);
}

QString textOf(const fs::path &path)
{
    return fromBytes(QByteArray::fromStdString(path.string()));
}

// Adds what is neither a file nor a folder; gives the names of those, with a slash behind folders, so that
// their order is that of all paths below them.
PathList namesIn(FileTree &tree, const QString &folder)
{
    PathList names;
    std::error_code error;
    const QString path = folder.isEmpty() ? tree.root : joinPath(tree.root, folder);
    fs::directory_iterator entry(toBytes(path).toStdString(), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code none; // mostly the entry knows without a call
        const QString name = textOf(entry->path().filename());
        if (entry->is_symlink(none))
            tree.links.append({below(folder, name), textOf(fs::read_symlink(entry->path(), none))});
        else if (entry->is_directory(none))
            names.append(name + u'/');
        else if (entry->is_regular_file(none))
            names.append(name);
        else
            tree.others.append(below(folder, name));
    }
    if (error)
        tree.unlisted.append(folder);
    return names;
}

void list(FileTree &tree, const QString &folder)
{
    const PathList names = namesIn(tree, folder);
    for (const quint32 index : names.sorted(PathList::Order::Texts)) {
        const QString name = names[index];
        if (name.endsWith(u'/'))
            list(tree, below(folder, name.chopped(1)));
        else
            tree.files.append(below(folder, name));
    }
}

} // namespace

FileTree listTree(const QString &root)
{
    FileTree tree{.root = root, .files = {}, .links = {}, .others = {}, .unlisted = {}};
    if (entryKind(root) == EntryKind::File) {
        tree.root = parentPath(root);
        tree.files.append(lastPathComponent(root));
        return tree;
    }
    list(tree, QString());
    std::sort(tree.others.begin(), tree.others.end());
    std::sort(tree.unlisted.begin(), tree.unlisted.end());
    std::sort(tree.links.begin(), tree.links.end(),
              [](const FileTree::Link &a, const FileTree::Link &b) { return a.path < b.path; });
    return tree;
}

} // namespace dravolin::check

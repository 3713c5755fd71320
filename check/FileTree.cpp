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

void sortIn(FileTree &tree, QStringList &folders, const fs::directory_entry &entry, const QString &path)
{
    std::error_code error; // mostly the entry knows without a call
    if (entry.is_symlink(error))
        tree.links.append({path, textOf(fs::read_symlink(entry.path(), error))});
    else if (entry.is_directory(error))
        folders.append(path);
    else if (entry.is_regular_file(error))
        tree.files.append(path);
    else
        tree.others.append(path);
}

void list(FileTree &tree, const QString &folder, QStringList &folders)
{
    std::error_code error;
    const QString path = folder.isEmpty() ? tree.root : joinPath(tree.root, folder);
    fs::directory_iterator entry(toBytes(path).toStdString(), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        sortIn(tree, folders, *entry, below(folder, textOf(entry->path().filename())));
    if (error)
        tree.unlisted.append(folder);
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
    QStringList folders = {QString()};
    while (!folders.isEmpty())
        list(tree, folders.takeLast(), folders);
    std::sort(tree.files.begin(), tree.files.end());
    std::sort(tree.others.begin(), tree.others.end());
    std::sort(tree.unlisted.begin(), tree.unlisted.end());
    std::sort(tree.links.begin(), tree.links.end(),
              [](const FileTree::Link &a, const FileTree::Link &b) { return a.path < b.path; });
    return tree;
}

} // namespace dravolin::check

#pragma once

#include "dicom/Treatment.h"
#include "support/ScratchFolder.h"

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

// DICOM files that DCMTK's tools make and read for the tests.
namespace dravolin::test {

// A file made by dump2dcm from a dump's text, with the options given (+ti, -e and so on).
[[nodiscard]] QString objectFile(const ScratchFolder &folder, const QString &name, const QByteArray &dump,
                                 const QStringList &options = {});

// The data set's bytes; those of a deflated one as they are in the file.
[[nodiscard]] QByteArray dataSetOf(const QString &path);

// The ways in which a data set can be written, as dump2dcm's options, with a name for each; some with
// the lengths of groups, if wanted.
[[nodiscard]] QList<QPair<QByteArray, QStringList>> waysOfWriting(bool withGroups = true);

// What a program prints on both channels; fails the test when it does not end with 0.
QByteArray printedBy(const QString &program, const QStringList &arguments);

// SHA-256 by Qt.
[[nodiscard]] QByteArray hashOfFile(const QString &path);

// The rules that lines of a configuration make; problems fail the test.
[[nodiscard]] AttributeRules rulesOf(const QString &configuration, bool withTable = false);

} // namespace dravolin::test

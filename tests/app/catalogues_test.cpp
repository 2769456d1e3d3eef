// What must hold for the translation sources, whoever wrote them last.
#include <algorithm>

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

const QStringList kLanguages{"de", "es", "fr", "it", "pl", "pt_BR", "ru"};

struct Message {
  QString translation;
  bool finished = false;
};

/// By context, a line break and the source text.
using Catalogue = QMap<QString, Message>;

Catalogue read(const QString& folder, const QString& language) {
  QFile file(folder + "/velmora_" + language + ".ts");
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
  QXmlStreamReader xml(&file);
  Catalogue catalogue;
  QString context, source;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == u"name") context = xml.readElementText();
    if (xml.name() == u"source") source = xml.readElementText();
    if (xml.name() == u"translation") {
      const bool finished = !xml.attributes().hasAttribute("type");
      const QString key = context + '\n' + source;
      EXPECT_FALSE(catalogue.contains(key)) << key.toStdString() << " is there twice";
      catalogue[key] = {xml.readElementText(), finished};
    }
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return catalogue;
}

QStringList placeholders(const QString& text) {
  static const QRegularExpression kPlaceholder("%L?\\d+");
  QStringList found;
  for (auto it = kPlaceholder.globalMatch(text); it.hasNext();) found.append(it.next().captured());
  found.sort();
  return found;
}

QString blanksAround(const QString& text) {
  static const QRegularExpression kInner("\\S(.*\\S)?",
                                         QRegularExpression::DotMatchesEverythingOption);
  return QString(text).replace(kInner, "|");
}

/// How long a translation may be. Short texts stand on buttons, tabs, labels and heads of columns,
/// where a word more is a line too much; sentences wrap.
qsizetype longest(const QString& source) {
  return source.size() <= 24 ? std::max<qsizetype>(source.size() * 2, source.size() + 8)
                             : source.size() * 2;
}

std::string text(const QString& key) {
  return QString(key).replace('\n', ": ").toStdString();
}

}  // namespace

TEST(Catalogues, HoldEveryTextOfTheProgramAndNoOther) {
  const QTemporaryDir folder;
  QProcess update;
  update.start(UPDATE_TRANSLATIONS, {folder.path()});
  ASSERT_TRUE(update.waitForFinished(120000));
  ASSERT_EQ(update.exitCode(), 0) << update.readAllStandardError().toStdString();
  const QStringList marked = read(folder.path(), "de").keys();
  ASSERT_GT(marked.size(), 300);
  for (const QString& language : kLanguages) {
    const QStringList kept = read(CATALOGUE_FOLDER, language).keys();
    for (const QString& key : QSet(marked.begin(), marked.end()) - QSet(kept.begin(), kept.end())) {
      ADD_FAILURE() << language.toStdString() << " lacks " << text(key);
    }
    for (const QString& key : QSet(kept.begin(), kept.end()) - QSet(marked.begin(), marked.end())) {
      ADD_FAILURE() << language.toStdString() << " still has " << text(key);
    }
  }
}

TEST(Catalogues, TranslationsAreCompleteAndKeepTheirForm) {
  for (const QString& language : kLanguages) {
    const Catalogue catalogue = read(CATALOGUE_FOLDER, language);
    for (auto it = catalogue.cbegin(); it != catalogue.cend(); ++it) {
      const QString source = it.key().section('\n', 1);
      const QString& translation = it->translation;
      SCOPED_TRACE(language.toStdString() + ", " + text(it.key()) + " -> " +
                   translation.toStdString());
      EXPECT_TRUE(it->finished);
      EXPECT_FALSE(translation.trimmed().isEmpty());
      EXPECT_EQ(placeholders(translation), placeholders(source));
      EXPECT_EQ(blanksAround(translation), blanksAround(source));
      EXPECT_EQ(translation.count('\n'), source.count('\n'));
      EXPECT_LE(translation.size(), longest(source));
    }
  }
}

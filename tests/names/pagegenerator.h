#pragma once

#include <QString>
#include <QStringList>

#include <random>

/// What a generated page may hold beside plain controls, links, images and texts.
struct PageFeatures {
  bool frames = false;
  bool shadowTrees = false;
  bool oddForms = false;  ///< Forms that share names, and forms with fields called "name", "id" or "title".
};

/// Makes the body of a page from a seed; the same seed gives the same page on every machine.
class PageGenerator {
public:
  PageGenerator(unsigned int seed, const PageFeatures& features) : m_random(seed), m_features(features) {}

  QString body() { return items(12, 3); }

private:
  QString items(int count, int depth);
  QString item(int depth);
  QString control();
  QString link();
  QString image();
  QString text();
  QString named();
  QString group(int depth);
  QString form(int depth);
  QString host(int depth);
  QString frame(int depth);

  int number(int below) { return static_cast<int>(m_random() % static_cast<unsigned int>(below)); }
  bool once(int in) { return number(in) == 0; }
  QString oneOf(const QStringList& texts) { return texts.at(number(texts.size())); }
  QString word();
  QString attribute(const QString& name);

  std::mt19937 m_random;
  PageFeatures m_features;
};

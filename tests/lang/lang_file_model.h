#ifndef KX_TESTS_LANG_LANG_FILE_MODEL_H
#define KX_TESTS_LANG_LANG_FILE_MODEL_H

#include <set>
#include <string>
#include <vector>

#include "lang/lang_reading.h"

/// A slow model of the reader, which reads like the rules of language files: one language, from
/// files whose lines are never too long.
class LangFileModel {
 public:
  void Read(const std::string& bytes, const std::string& file);

  StoredLanguage stored;
  std::vector<std::string> problems;
  std::set<std::string> names;  ///< of all keys, buttons and directories, also of those dropped

 private:
  void Line(const std::string& bytes);
  bool Header(const std::string& text);
  void Charset(const std::string& charset);
  void Body(const std::string& text);
  void Value(const std::string& text);
  void Label(const std::string& text);
  void Continuation(const std::string& text);
  void Commit();
  void ReportAndReset(const std::string& words);
  void Report(const std::string& words);
  void Reset();
  std::string Named(const std::string& name);

  std::string file_;
  int number_ = 0;
  std::string line_;
  bool inHeader_ = true;
  bool accepted_ = false;
  bool keyPending_ = false;
  bool buttonPending_ = false;
  bool valueRead_ = false;
  bool labelRead_ = false;
  std::string keyName_;
  std::string valueText_;
  std::string buttonName_;
  std::string labelText_;
};

#endif  // KX_TESTS_LANG_LANG_FILE_MODEL_H

#include "lang/lang_file_model.h"

#include <cstddef>
#include <optional>

namespace {

const std::string kAllWhiteSpace = " \t\n\v\f\r";
const std::string kRemovedAtTheEnd = " \t\n\r";

std::string WithoutStart(const std::string& text) {
  const std::size_t begin = text.find_first_not_of(kAllWhiteSpace);
  return begin == std::string::npos ? "" : text.substr(begin);
}

std::string WithoutEnd(const std::string& text) {
  return text.substr(0, text.find_last_not_of(kRemovedAtTheEnd) + 1);
}

bool BeginsWith(const std::string& text, const std::string& start) {
  return text.compare(0, start.size(), start) == 0;
}

/// What stands behind a keyword, without white space in front; nothing when the line has another.
std::optional<std::string> Behind(const std::string& keyword, const std::string& text) {
  if (!BeginsWith(InSmallLetters(text), InSmallLetters(keyword))) return std::nullopt;
  return WithoutStart(text.substr(keyword.size()));
}

/// The same for the first of several keywords.
std::optional<std::string> BehindAny(const std::vector<std::string>& keywords,
                                     const std::string& text) {
  for (const std::string& keyword : keywords) {
    if (const auto value = Behind(keyword, text)) return value;
  }
  return std::nullopt;
}

bool IsWord(const std::string& word, const std::string& text) {
  return InSmallLetters(text) == InSmallLetters(word);
}

}  // namespace

void LangFileModel::Read(const std::string& bytes, const std::string& file) {
  file_ = file;
  number_ = 0;
  inHeader_ = true;
  accepted_ = false;
  Reset();
  std::size_t begin = 0;
  for (std::size_t end; (end = bytes.find('\n', begin)) != std::string::npos; begin = end + 1) {
    Line(bytes.substr(begin, end - begin));
  }
  Line(bytes.substr(begin));  // what is behind the last line end counts as a line, too
  Commit();
}

void LangFileModel::Line(const std::string& bytes) {
  ++number_;
  line_ = WithoutEnd(bytes.substr(0, bytes.find('\0')));
  const std::string text = WithoutStart(line_);
  if (BeginsWith(text, ";") || BeginsWith(text, "#") || BeginsWith(text, "//")) return;
  if (text.empty()) {
    if (accepted_) inHeader_ = false;
  } else if (inHeader_) {
    if (Header(text)) accepted_ = true;
  } else {
    Body(text);
  }
}

bool LangFileModel::Header(const std::string& text) {
  if (const auto value = BehindAny({"Long Name ", "LongName ", "Name ", "Description "}, text)) {
    stored.longName = value;
  } else if (const auto images = BehindAny({"Images ", "Image Directory ", "Image Path "}, text)) {
    stored.images = images;
  } else if (const auto charset = BehindAny({"Charset ", "Character Set "}, text)) {
    Charset(*charset);
  } else if (const auto suffix = Behind("Prompt Suffix ", text)) {
    stored.promptSuffix = suffix;
  } else if (const auto directory = Behind("Directory ", text)) {
    const std::size_t end = directory->find(' ');
    const std::string name = Named(directory->substr(0, end));
    stored.directories[name] = end == std::string::npos ? "" : WithoutStart(directory->substr(end));
  } else if (IsWord("Debug", text)) {
    stored.debug = true;
  } else if (const auto direction = Behind("Direction ", text)) {
    if (*direction == "LTR" || *direction == "RTL") stored.direction = *direction;
  } else {
    Report("Illegal Header Directive");
    return false;
  }
  return true;
}

void LangFileModel::Charset(const std::string& charset) {
  if (!stored.charset.empty() && !IsWord(stored.charset, charset)) {
    problems.push_back(file_ + " contains a differing value for CHARSET from default language");
  }
  stored.charset = charset;
}

void LangFileModel::Body(const std::string& text) {
  if (text[0] == '&') {
    Continuation(text.substr(1));
  } else if (const auto key = Behind("Key ", text)) {
    Commit();
    keyName_ = *key;
    keyPending_ = true;
    Named(*key);
  } else if (const auto button = Behind("Button ", text)) {
    Commit();
    buttonName_ = *button;
    buttonPending_ = true;
    Named(*button);
  } else if (const auto value = BehindAny({"Val ", "Value "}, text)) {
    Value(*value);
  } else if (IsWord("Val", text) || IsWord("Value", text)) {
    Value("");
  } else if (const auto label = Behind("Label ", text)) {
    Label(*label);
  } else if (IsWord("Label", text)) {
    Label("");
  } else {
    Report("Unrecognized text");
  }
}

void LangFileModel::Value(const std::string& text) {
  if (!keyPending_) return ReportAndReset("VALUE found without a KEY");
  keyPending_ = false;
  valueRead_ = true;
  valueText_ = text;
}

void LangFileModel::Label(const std::string& text) {
  if (!buttonPending_) return ReportAndReset("VALUE found without a KEY");
  buttonPending_ = false;
  labelRead_ = true;
  labelText_ = text;
}

void LangFileModel::Continuation(const std::string& text) {
  if (buttonPending_) {
    Named(buttonName_ += text);
  } else if (labelRead_) {
    labelText_ += text;
  } else if (keyPending_) {
    Named(keyName_ += text);
  } else if (valueRead_) {
    valueText_ += text;
  } else {
    Report("Unrecognized continuation text");
  }
}

void LangFileModel::Commit() {
  if (valueRead_) stored.texts[Named(keyName_)] = valueText_;
  if (labelRead_) stored.labels[Named(buttonName_)] = labelText_;
  if (keyPending_ || buttonPending_) Report("Two KEY clauses without intervening VALUE");
  Reset();
}

void LangFileModel::ReportAndReset(const std::string& words) {
  Report(words);
  Reset();
}

void LangFileModel::Report(const std::string& words) {
  problems.push_back(words + " in " + file_ + " at line #" + std::to_string(number_) + ": " +
                     line_);
}

void LangFileModel::Reset() {
  keyPending_ = buttonPending_ = valueRead_ = labelRead_ = false;
  keyName_ = valueText_ = buttonName_ = labelText_ = "";
}

std::string LangFileModel::Named(const std::string& name) {
  names.insert(name);
  return InSmallLetters(name);
}

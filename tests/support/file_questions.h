#ifndef KX_TESTS_SUPPORT_FILE_QUESTIONS_H
#define KX_TESTS_SUPPORT_FILE_QUESTIONS_H

#include <string>

/// What this program asks the system about files by their paths. Programs that use it list
/// file_questions_posix.cpp, which stands in front of the system's functions.
struct FileQuestions {
  int statuses = 0;
  int opens = 0;
};

/// Counts from now on, of files whose paths begin so.
void CountFileQuestions(const std::string& beginning);

/// Those since; ends the count.
FileQuestions CountedFileQuestions();

#endif  // KX_TESTS_SUPPORT_FILE_QUESTIONS_H

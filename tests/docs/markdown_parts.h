#ifndef KX_TESTS_DOCS_MARKDOWN_PARTS_H
#define KX_TESTS_DOCS_MARKDOWN_PARTS_H

#include <cstddef>
#include <string>
#include <vector>

// What the documents show is read from them by the tests that run it, so that the two cannot part.

/// The code spans of a table's cell: "`a` and `b`" holds "a" and "b".
using Spans = std::vector<std::string>;

/// One document of the folder docs.
class MarkdownParts {
 public:
  /// @param name  such as "lang-files.md"; throws when there is no such document
  explicit MarkdownParts(const std::string& name);

  /// The lines of the code block under a heading ("## Lines" is "Lines"), the first being 0. Throws
  /// when there are not so many.
  std::string Block(const std::string& heading, std::size_t number = 0) const;

  /// The rows of the table whose heading begins so ("File | Bundle"), as the spans of their cells.
  /// Throws when there is no such table or it has no rows.
  std::vector<std::vector<Spans>> Table(const std::string& heading) const;

 private:
  std::vector<std::string> lines_;
};

#endif  // KX_TESTS_DOCS_MARKDOWN_PARTS_H

// A script and its transcript, which are one file.
#pragma once

#include <string>
#include <vector>

namespace transcript {

/// The file, line by line:
///
///   # ...               a comment; so is an empty line
///   @args WORDS         more words for the program's command line, before the first answer
///   @file NAME          the lines up to `@end` are written into that file of the home directory,
///                       with CR LF: before the program starts, if it stands before all answers
///   @expect-file NAME   that file must hold the lines up to `@end`, with CR LF
///   @no-file NAME       there must be no such file
///   > COMMAND           is sent to the program; what follows is the answer. Several commands, with
///                       ` ; ` between them, are sent in turn: what follows is all their answers,
///                       with the `ok` of the last. A refusal ends the row
///   >N COMMAND          is sent N times over
///   ? LINE              asks, with `get`, for the value that LINE tells: the answer is LINE
///   ...                 any number of lines, in an answer or in an expected file
///   other lines         the answer, in order; those before the first command are the start-up's
///
/// The last line of an answer, if it is `ok`, may be left out. A bare `no:` stands for any reason.
/// `(ended)` is the answer of a program that is gone. `$HOME_DIR` stands for the home directory
/// everywhere.
struct Part {
  enum class Kind { Note, Args, File, ExpectFile, NoFile, Start, Command };
  Kind kind = Kind::Note;
  std::string text;                   ///< the words, or the file's name
  int line = 0;                       ///< where it begins, from 1
  std::vector<std::string> commands;  ///< that are sent
  std::vector<std::string> original;  ///< its lines as they stand in the file
  std::vector<std::string> expected;  ///< the answer, or the lines up to `@end`
};

/// Throws std::runtime_error, with the line's number, if the file is not well formed.
std::vector<Part> ReadTalk(const std::string& path);

/// Replaces what the part expects; its comments stay.
void SetExpected(Part& part, const std::vector<std::string>& expected);

void WriteTalk(const std::string& path, const std::vector<Part>& parts);

}  // namespace transcript

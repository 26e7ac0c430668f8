// The program's byte strings as Qt's, and back.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace ui::qt {

/// Text is UTF-8; what is not is taken as Latin-1.
QString ToQt(std::string_view bytes);
std::string FromQt(const QString& text);

/// Tool tips and the like guess at markup; this keeps a plain text plain.
QString PlainTip(std::string_view bytes);

}  // namespace ui::qt

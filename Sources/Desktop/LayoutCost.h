#pragma once

#include <string_view>

namespace TQFoundation {

/// Whether QTextDocument and the mail editor lay out \a html in less than 500 ms of a desktop's processor.
///
/// Pessimistic, because the message is not trusted: 950 characters can ask for 100,000 table cells. Understands plain
/// text, paragraphs, lists, links, images, flat tables, and what QTextDocument::toHtml() writes for them. False for any
/// other tag, attribute, style property or nesting, and for large numbers.
///
/// Also false if the estimated time exceeds 150 ms. That is enough for 60,000 Latin, 8,000 Chinese or 5,000 Arabic
/// characters, or for 11,000 Latin ones in lists, tables and other indented columns. Takes 20 ms itself at most. Any
/// thread.
bool isCheapToLayOut(std::u16string_view html);

} // namespace TQFoundation

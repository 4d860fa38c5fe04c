#pragma once
// Large buffers freed by the program are kept for its next large buffers instead of being
// handed back to the system at once. A reload frees a document's text and styles and at once
// asks for as much again; fresh memory from the system must be faulted in page by page, which
// costs more than filling the text itself. Call once, at the start of a program that edits.
namespace lathwick {

void keepLargeBuffersForReuse();

}  // namespace lathwick

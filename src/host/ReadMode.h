#pragma once
// How the plug-in's host objects answer reads. Within one entry-point call the host's answers
// do not change unless the plug-in itself writes (the catalogue tables are fixed while loaded,
// and the host is blocked while the plug-in runs), so by default a read already answered in the
// call is not asked again. The literal mode asks the host at every step, as the procedures read.
namespace host {

enum class ReadMode { Cached, Literal };

}  // namespace host

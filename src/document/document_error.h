// The error record of the document layer.
#pragma once

#include <QString>

namespace norvex {

/// Codes of the domain errorDomain().
enum class DocumentErrorCode {
  MissingData = 1,  ///< there were no bytes to read
  UnacceptedType =
      3,  ///< reserved: an unaccepted type raises UnimplementedMethod before it could be delivered
  NoDataProduced = 4,  ///< reserved in the same way for writing
  NotWritten = 5,      ///< there were bytes, but they did not become the file
};

struct DocumentError {
  QString domain;              ///< errorDomain()
  int code = 0;                ///< a DocumentErrorCode
  QString recoverySuggestion;  ///< the text for the user, in the user's language
};

}  // namespace norvex

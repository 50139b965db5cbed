# A header that knows no machine: Debian's own serves, but not the folder it lies in, which is full of the host's.
set(json_ordner ${CMAKE_BINARY_DIR}/json)
file(MAKE_DIRECTORY ${json_ordner})
file(CREATE_LINK /usr/include/nlohmann ${json_ordner}/nlohmann SYMBOLIC)
if(NOT TARGET nlohmann_json::nlohmann_json)
  add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED GLOBAL)
  target_include_directories(nlohmann_json::nlohmann_json SYSTEM INTERFACE ${json_ordner})
endif()
set(nlohmann_json_FOUND TRUE)

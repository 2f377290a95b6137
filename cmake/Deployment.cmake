# The values that a deployment chooses. They reach the code through settings/Deployment.h alone.
set(ORVIK_APPLICATION_IDENTIFIER "com.orvikstudio.orvikmenu" CACHE STRING "Application bundle identifier")
set(ORVIK_EXTENSION_IDENTIFIER "com.orvikstudio.orvikmenu.findersyncextension" CACHE STRING
  "Extension bundle identifier, all lower case")
set(ORVIK_SUITE_NAME "ORVIK4MENU.com.orvikstudio.orvikmenu" CACHE STRING "Shared settings suite")

configure_file(${CMAKE_SOURCE_DIR}/src/settings/Deployment.h.in
  ${CMAKE_BINARY_DIR}/generated/settings/Deployment.h @ONLY)

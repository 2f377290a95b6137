# The values that a deployment chooses. They reach the code through settings/Deployment.h alone.
set(ORVIK_APPLICATION_IDENTIFIER "com.orvikstudio.orvikmenu" CACHE STRING "Application bundle identifier")
set(ORVIK_EXTENSION_IDENTIFIER "${ORVIK_APPLICATION_IDENTIFIER}.findersyncextension" CACHE STRING
  "Extension bundle identifier, all lower case")
set(ORVIK_SUITE_NAME "ORVIK4MENU.${ORVIK_APPLICATION_IDENTIFIER}" CACHE STRING "Shared settings suite")
set(ORVIK_WEB_ADDRESS "http://orvikstudio.example/" CACHE STRING "The maker's web site")
set(ORVIK_TWITTER_ADDRESS "https://twitter.example/orvikapp" CACHE STRING "The maker's Twitter page")
set(ORVIK_FACEBOOK_ADDRESS "https://facebook.example/orvik.studio" CACHE STRING "The maker's Facebook page")
set(ORVIK_STORE_ADDRESS "macappstore://apps.orvik.example/app/id10000001" CACHE STRING "The application's page in the store")
set(ORVIK_SHOWCASE_STORE_PREFIX "macappstore://apps.orvik.example/app/id" CACHE STRING
  "What the store addresses of the maker's other applications begin with")

configure_file(${CMAKE_SOURCE_DIR}/src/settings/Deployment.h.in
  ${CMAKE_BINARY_DIR}/generated/settings/Deployment.h @ONLY)

add_library(orvik_deployment INTERFACE)
target_link_libraries(orvik_deployment INTERFACE orvik_options)
target_include_directories(orvik_deployment INTERFACE ${CMAKE_BINARY_DIR}/generated)

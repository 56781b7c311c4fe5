# A block's form is all that its dialog needs. Of dialogs/blocks/rtcconfig.ui, whose class is RTCConfig, comes the dialog RTCDlg; one
# with more than switches is written by hand, in dialogs/NAMEdlg.cpp. All of them are in "dialogs/blockdialogs.h", in the build folder,
# with a function that makes any of them by its name.
file(GLOB block_forms CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/blocks/*.ui)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${block_forms})

set(header_includes "")
set(form_includes "")
set(forward_declarations "")
set(classes "")
set(constructors "")
set(makers "")
foreach(path IN LISTS block_forms)
    cmake_path(GET path STEM file)
    file(STRINGS ${path} class REGEX "<class>" LIMIT_COUNT 1)
    if(NOT class MATCHES "<class>TARVOORIXM1::([A-Za-z0-9]+)</class>")
        message(FATAL_ERROR "${path}: the form's class is not in TARVOORIXM1")
    endif()
    set(form ${CMAKE_MATCH_1})
    string(REGEX REPLACE "Config$" "" dialog ${form})
    string(APPEND dialog Dlg)
    string(APPEND makers "    {\"${dialog}\"_l1, make<${dialog}>},\n")
    string(TOLOWER ${dialog} written)
    if(EXISTS ${CMAKE_CURRENT_LIST_DIR}/${written}.h)
        string(APPEND header_includes "#include \"dialogs/${written}.h\"\n")
        continue()
    endif()
    string(APPEND form_includes "#include \"ui_${file}.h\"\n")
    string(APPEND forward_declarations "class ${form};\n")
    string(APPEND classes "
class ${dialog} : public PeripheralDlg
{
    Q_OBJECT

public:
    ${dialog}(OptionMap *options, QWidget *parent = nullptr);
    ~${dialog}() override;

private:
    std::unique_ptr<Ui::${form}> ui;
};
")
    string(APPEND constructors "
${dialog}::${dialog}(OptionMap *options, QWidget *parent)
    : PeripheralDlg(\"${dialog}\"_l1, options, parent)
    , ui(makeForm<Ui::${form}>())
{
    start();
}

${dialog}::~${dialog}() = default;
")
endforeach()

set(block_dialogs ${CMAKE_CURRENT_BINARY_DIR}/dialogs/blockdialogs)
configure_file(${CMAKE_CURRENT_LIST_DIR}/blockdialogs.h.in ${block_dialogs}.h @ONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/blockdialogs.cpp.in ${block_dialogs}.cpp @ONLY)

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CloseButton</name>
    <message>
        <source>Close Tab</source>
        <translation>关闭标签页</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>全选(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>增大(&amp;S)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>减小(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>增大</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>减小</translation>
    </message>
    <message>
        <source>ShowMenu</source>
        <translation>显示菜单</translation>
    </message>
    <message>
        <source>SetFocus</source>
        <translation>设为焦点</translation>
    </message>
    <message>
        <source>Toggle</source>
        <translation>切换</translation>
    </message>
    <message>
        <source>Scroll Left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>向右滚动</translation>
    </message>
    <message>
        <source>Scroll Up</source>
        <translation>向上滚动</translation>
    </message>
    <message>
        <source>Scroll Down</source>
        <translation>向下滚动</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>触发操作</translation>
    </message>
    <message>
        <source>Increase the value</source>
        <translation>增大数值</translation>
    </message>
    <message>
        <source>Decrease the value</source>
        <translation>减小数值</translation>
    </message>
    <message>
        <source>Shows the menu</source>
        <translation>显示菜单</translation>
    </message>
    <message>
        <source>Sets the focus</source>
        <translation>将焦点移到此处</translation>
    </message>
    <message>
        <source>Toggles the state</source>
        <translation>切换状态</translation>
    </message>
    <message>
        <source>Scrolls to the left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scrolls to the right</source>
        <translation>向右滚动</translation>
    </message>
    <message>
        <source>Scrolls up</source>
        <translation>向上滚动</translation>
    </message>
    <message>
        <source>Scrolls down</source>
        <translation>向下滚动</translation>
    </message>
    <message>
        <source>Goes back a page</source>
        <translation>返回上一页</translation>
    </message>
    <message>
        <source>Goes to the next page</source>
        <translation>转到下一页</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>打开选择列表</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>浮动</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>使面板浮动或重新停靠</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>关闭面板</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>查找范围：</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>文件名(&amp;N)：</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>文件类型：</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>文件夹：</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>选择(&amp;C)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>上级文件夹</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 文件</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>查找文件夹</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>显示隐藏文件(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新建文件夹(&amp;N)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>转到上级文件夹</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新建一个文件夹</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>切换到列表视图</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>切换到详细视图</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>侧边栏</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>位置和书签列表</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>最近的位置</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 已存在。
要替换它吗？</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
找不到文件。
请检查文件名是否正确。</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
找不到文件夹。
请检查文件夹名是否正确。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>确定要删除“%1”吗？</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1”受写保护。
仍要删除吗？</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>无法删除文件夹。</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>显示 </translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>文件名无效</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;不能使用名称“%1”。&lt;/b&gt;&lt;p&gt;请换一个较短或不含标点符号的名称。</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>不保存就关闭</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>显示详情...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>隐藏详情...</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>全部保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>全部选是(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>全部选否(&amp;O)</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>恢复默认值</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>滚动到此处</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左边缘</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右边缘</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>左翻一页</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>上翻一页</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>右翻一页</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>下翻一页</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>向上滚动</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>向右滚动</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>向下滚动</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>PgUp</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>PgDown</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>↑</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>↓</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>←</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>→</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>回车</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Num</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Shift+Tab</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>退格</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Ins</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>F%1</source>
        <translation>F%1</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>向右滚动</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>复制链接地址(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>it is empty or too long</source>
        <translation>它为空或过长</translation>
    </message>
    <message>
        <source>it has characters that no path may have</source>
        <translation>它含有路径中不允许的字符</translation>
    </message>
    <message>
        <source>it does not name a file below a folder</source>
        <translation>它指的不是某个文件夹之下的文件</translation>
    </message>
    <message>
        <source>its &quot;error&quot; is no plain text</source>
        <translation>其 “error” 不是纯文本</translation>
    </message>
    <message>
        <source>its &quot;text&quot; is no text</source>
        <translation>其 “text” 不是文本</translation>
    </message>
    <message>
        <source>its &quot;files&quot; are no list, or more than %1</source>
        <translation>其 “files” 不是列表，或多于 %1 项</translation>
    </message>
    <message>
        <source>its &quot;differences&quot; are no list, or more than %1</source>
        <translation>其 “differences” 不是列表，或多于 %1 项</translation>
    </message>
    <message>
        <source>its &quot;notes&quot; are no plain texts</source>
        <translation>其 “notes” 不是纯文本</translation>
    </message>
    <message>
        <source>%1 is no path below the output folder</source>
        <translation>%1 不是输出文件夹之下的路径</translation>
    </message>
    <message>
        <source>what it says of %1 makes no sense</source>
        <translation>关于 %1 的说明没有意义</translation>
    </message>
    <message>
        <source>one of its differences is no plain text</source>
        <translation>其中一处差异不是纯文本</translation>
    </message>
    <message>
        <source>The plug-in folder does not exist.</source>
        <translation>插件文件夹不存在。</translation>
    </message>
    <message>
        <source>Its IP &quot;%1&quot; is offered by &quot;%2&quot; already.</source>
        <translation>其 IP “%1” 已由 “%2” 提供。</translation>
    </message>
    <message>
        <source>There is no device yet: it comes with a project.</source>
        <translation>还没有器件：器件随项目而定。</translation>
    </message>
    <message>
        <source>The plug-in failed when it was asked about the device: %1.</source>
        <translation>向插件询问该器件时插件失败：%1。</translation>
    </message>
    <message>
        <source>%1 does not support the device %2.</source>
        <translation>%1 不支持器件 %2。</translation>
    </message>
    <message>
        <source>The plug-in of %1 failed: %2.</source>
        <translation>%1 的插件失败：%2。</translation>
    </message>
    <message>
        <source>The plug-in of %1 cannot move its IPs to other devices.</source>
        <translation>%1 的插件不能把其 IP 移到其他器件。</translation>
    </message>
    <message>
        <source>The plug-in of %1 hands on nothing.</source>
        <translation>%1 的插件没有可交付的内容。</translation>
    </message>
    <message>
        <source>The plug-in of %1 takes no programs.</source>
        <translation>%1 的插件不接受程序。</translation>
    </message>
    <message>
        <source>The plug-in of %1 cannot simulate.</source>
        <translation>%1 的插件不能仿真。</translation>
    </message>
    <message>
        <source>The plug-in of %1 has no maps.</source>
        <translation>%1 的插件没有映射图。</translation>
    </message>
    <message>
        <source>a door of %1 is no map with a place, a text and a document</source>
        <translation>%1 的一个入口不是由位置、文字和文档组成的映射</translation>
    </message>
    <message>
        <source>the &quot;headings&quot; of the door %1 are no texts of a line</source>
        <translation>入口 %1 的 “headings” 不是单行文本</translation>
    </message>
    <message>
        <source>the door %1 leads to the document %2: %3</source>
        <translation>入口 %1 指向文档 %2：%3</translation>
    </message>
    <message>
        <source>the door %1 is not in its picture</source>
        <translation>入口 %1 不在其图中</translation>
    </message>
    <message>
        <source>the doors %1 and %2 overlap</source>
        <translation>入口 %1 与 %2 重叠</translation>
    </message>
    <message>
        <source>it is no drawing of up to %1 MiB</source>
        <translation>它不是不超过 %1 MiB 的图形</translation>
    </message>
    <message>
        <source>one of its &quot;maps&quot; is no map with a title, a text and doors</source>
        <translation>其 “maps” 中有一项不是由标题、文字和入口组成的映射</translation>
    </message>
    <message>
        <source>the &quot;%1&quot; of %2 cannot be shown: %3</source>
        <translation>%2 的 “%1” 无法显示：%3</translation>
    </message>
    <message>
        <source>the drawings of %1 differ in size</source>
        <translation>%1 的各图形大小不同</translation>
    </message>
    <message>
        <source>%1 has more than %2 doors</source>
        <translation>%1 的入口多于 %2 个</translation>
    </message>
    <message>
        <source>its &quot;error&quot; is no text of a line</source>
        <translation>其 “error” 不是单行文本</translation>
    </message>
    <message>
        <source>its &quot;maps&quot; are no list of up to %1</source>
        <translation>其 “maps” 不是至多 %1 项的列表</translation>
    </message>
    <message>
        <source>%1 has no maps that can be shown: %2</source>
        <translation>%1 没有可显示的映射图：%2</translation>
    </message>
    <message>
        <source>an exception without a text</source>
        <translation>没有说明文字的异常</translation>
    </message>
    <message>
        <source>an exception of an unknown type</source>
        <translation>未知类型的异常</translation>
    </message>
    <message>
        <source>It failed while it was started: %1.</source>
        <translation>启动时失败：%1。</translation>
    </message>
    <message>
        <source>It is a Qt plug-in, but not one for IPs.</source>
        <translation>它是 Qt 插件，但不是 IP 插件。</translation>
    </message>
    <message>
        <source>It is no plug-in: %1</source>
        <translation>它不是插件：%1</translation>
    </message>
    <message>
        <source>It offers no IP: it finds no usable descriptor in its data folder &quot;%1&quot;.</source>
        <translation>它不提供 IP：在其数据文件夹 “%1” 中找不到可用的描述文件。</translation>
    </message>
    <message>
        <source>One of its IPs is no object.</source>
        <translation>它的一个 IP 不是对象。</translation>
    </message>
    <message>
        <source>It offers one object twice.</source>
        <translation>它两次提供了同一个对象。</translation>
    </message>
    <message>
        <source>It failed when it was asked for an IP: %1.</source>
        <translation>向它询问某个 IP 时失败：%1。</translation>
    </message>
    <message>
        <source>One of its IPs has no id or no name.</source>
        <translation>它的一个 IP 没有标识或名称。</translation>
    </message>
    <message>
        <source>its &quot;resources&quot; are no list of resources with numbers in their range</source>
        <translation>其 “resources” 不是数值在范围内的资源列表</translation>
    </message>
    <message>
        <source>its &quot;pins&quot; are no numbers</source>
        <translation>其 “pins” 不是数值</translation>
    </message>
    <message>
        <source>its &quot;blocks&quot; are no list of blocks with their shares</source>
        <translation>其 “blocks” 不是带份额的模块列表</translation>
    </message>
    <message>
        <source>its &quot;blackBoxes&quot; are no list of cells with their number</source>
        <translation>其 “blackBoxes” 不是带数量的单元列表</translation>
    </message>
    <message>
        <source>its &quot;program&quot; is no program with a full path</source>
        <translation>其 “program” 不是带完整路径的程序</translation>
    </message>
    <message>
        <source>its &quot;arguments&quot; are no list of texts</source>
        <translation>其 “arguments” 不是文本列表</translation>
    </message>
    <message>
        <source>its &quot;file&quot; is no name of a file</source>
        <translation>其 “file” 不是文件名</translation>
    </message>
    <message>
        <source>its &quot;configuration&quot; is no text of a file</source>
        <translation>其 “configuration” 不是文件的文本</translation>
    </message>
    <message>
        <source>what it prints has no &quot;resources&quot;</source>
        <translation>其输出中没有 “resources”</translation>
    </message>
    <message>
        <source>its &quot;resources&quot; are no list of resources with numbers</source>
        <translation>其 “resources” 不是带数值的资源列表</translation>
    </message>
    <message>
        <source>its &quot;resources&quot; have one twice</source>
        <translation>其 “resources” 中有一项重复</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 of 0</source>
        <translation>%1 %2，共 0</translation>
    </message>
    <message>
        <source>%1 %2 of %3 (%4 %)</source>
        <translation>%1 %2，共 %3 (%4 %)</translation>
    </message>
    <message>
        <source>may not fit</source>
        <translation>可能放不下</translation>
    </message>
    <message>
        <source>does not fit: %1 too many</source>
        <translation>放不下：多出 %1</translation>
    </message>
    <message>
        <source>does not fit: about %1 too many</source>
        <translation>放不下：约多出 %1</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <translation>%1 至 %2 之间</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>约 %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1，共 %2</translation>
    </message>
    <message>
        <source>Me&amp;ter</source>
        <translation>用量(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Steps</source>
        <translation>步骤(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>预览(&amp;P)</translation>
    </message>
    <message>
        <source>there are more than %1 of them</source>
        <translation>多于 %1 个</translation>
    </message>
    <message>
        <source>one of them has no &quot;name&quot; of a line: number %1</source>
        <translation>其中一个没有单行的 “name”：第 %1 个</translation>
    </message>
    <message>
        <source>it is not a text file</source>
        <translation>它不是文本文件</translation>
    </message>
    <message>
        <source>Latin-1</source>
        <translation>Latin-1</translation>
    </message>
    <message>
        <source>UTF-8 with mark</source>
        <translation>带标记的 UTF-8</translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation>UTF-8</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>This line ends with %1, which is not how most lines of the file end.</source>
        <translation>此行以 %1 结尾，与文件中多数行不同。</translation>
    </message>
    <message>
        <source>Byte %1 of the character U+%2, which would not be seen.</source>
        <translation>字符 U+%2 的字节 %1，该字符本来不可见。</translation>
    </message>
    <message>
        <source>Byte %1, which is no UTF-8 here.</source>
        <translation>字节 %1，在此处不是 UTF-8。</translation>
    </message>
    <message>
        <source>another program is changing it</source>
        <translation>另一个程序正在修改它</translation>
    </message>
    <message>
        <source>Cannot change &quot;%1&quot;: %2.</source>
        <translation>无法修改 “%1”：%2。</translation>
    </message>
    <message>
        <source>for the unknown device %1</source>
        <translation>用于未知器件 %1</translation>
    </message>
    <message>
        <source>for %1; project: %2</source>
        <translation>用于 %1；项目：%2</translation>
    </message>
    <message>
        <source>This IP is made for the device &quot;%1&quot;, which the device database does not know.</source>
        <translation>此 IP 用于器件 “%1”，器件数据库中没有该器件。</translation>
    </message>
    <message>
        <source>This IP is made for the device %1, and the project is for %2.</source>
        <translation>此 IP 用于器件 %1，而项目用于 %2。</translation>
    </message>
    <message>
        <source>Project &quot;%1&quot;: %2.</source>
        <translation>项目 “%1”：%2。</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>第 %1 行，第 %2 列：%3</translation>
    </message>
    <message>
        <source>it holds no JSON object</source>
        <translation>其中没有 JSON 对象</translation>
    </message>
    <message>
        <source>it has no format number (&quot;format&quot;), so it is no project</source>
        <translation>其中没有格式号 (“format”)，因此不是项目</translation>
    </message>
    <message>
        <source>it was written by a newer version of this program (format %1; this program reads format %2)</source>
        <translation>它由本程序的较新版本写成（格式 %1；本程序读取格式 %2）</translation>
    </message>
    <message>
        <source>&quot;device&quot; is no text</source>
        <translation>“device” 不是文本</translation>
    </message>
    <message>
        <source>&quot;top&quot; is no text</source>
        <translation>“top” 不是文本</translation>
    </message>
    <message>
        <source>&quot;files&quot; is no list</source>
        <translation>“files” 不是列表</translation>
    </message>
    <message>
        <source>&quot;files&quot; holds an entry that is no file name</source>
        <translation>“files” 中有一项不是文件名</translation>
    </message>
    <message>
        <source>The last results cannot be shown: &quot;%1&quot; %2.</source>
        <translation>无法显示上次的结果：“%1” %2。</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>过大</translation>
    </message>
    <message>
        <source>is no report of a run</source>
        <translation>不是运行报告</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already, and nothing in it is replaced.</source>
        <translation>“%1” 已经存在，其中的内容不会被替换。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>无法创建文件夹 “%1”。</translation>
    </message>
    <message>
        <source>a line of more than %1 bytes</source>
        <translation>超过 %1 字节的行</translation>
    </message>
    <message>
        <source>its &quot;inputs&quot; are no list of kinds of files with names of their own</source>
        <translation>其 “inputs” 不是名称各异的文件种类列表</translation>
    </message>
    <message>
        <source>its &quot;engines&quot; are no list of simulators with names of their own</source>
        <translation>其 “engines” 不是名称各异的仿真器列表</translation>
    </message>
    <message>
        <source>it does not tell how waves are written</source>
        <translation>它没有说明如何写出波形</translation>
    </message>
    <message>
        <source>its numbers of UARTs, pins or clock cycles are none</source>
        <translation>其 UART、引脚或时钟周期的数目不是数值</translation>
    </message>
    <message>
        <source>it has more than %1 examples</source>
        <translation>它的示例多于 %1 个</translation>
    </message>
    <message>
        <source>one of its examples is none that can be copied</source>
        <translation>它的一个示例无法复制</translation>
    </message>
    <message>
        <source>No plug-in offers the IP of &quot;%1&quot;.</source>
        <translation>没有插件提供 “%1” 的 IP。</translation>
    </message>
    <message>
        <source>What the plug-in of %1 answers cannot be used: %2.</source>
        <translation>%1 的插件的回答无法使用：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be started: %2.</source>
        <translation>无法启动 “%1”：%2。</translation>
    </message>
    <message>
        <source>the program that simulates was ended by a signal</source>
        <translation>仿真程序被信号终止</translation>
    </message>
    <message>
        <source>the program that simulates ended with status %1 and told nothing</source>
        <translation>仿真程序以状态 %1 结束，没有任何说明</translation>
    </message>
    <message>
        <source>1 clock cycle</source>
        <translation>1 个时钟周期</translation>
    </message>
    <message>
        <source>%1 clock cycles</source>
        <translation>%1 个时钟周期</translation>
    </message>
    <message>
        <source>Stopped before the program ran</source>
        <translation>在程序运行之前已停止</translation>
    </message>
    <message>
        <source>The program did not run</source>
        <translation>程序没有运行</translation>
    </message>
    <message>
        <source>Passed after %1</source>
        <translation>通过，历时 %1</translation>
    </message>
    <message>
        <source>Ended by the time limit after %1</source>
        <translation>因时间限制结束，历时 %1</translation>
    </message>
    <message>
        <source>Stopped after %1</source>
        <translation>已停止，历时 %1</translation>
    </message>
    <message>
        <source>Failed after %1</source>
        <translation>失败，历时 %1</translation>
    </message>
    <message>
        <source>%1 µs</source>
        <translation>%1 µs</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>正在停止…</translation>
    </message>
    <message>
        <source>Compiling the program…</source>
        <translation>正在编译程序…</translation>
    </message>
    <message>
        <source>Building the simulation…</source>
        <translation>正在构建仿真…</translation>
    </message>
    <message>
        <source>Running: %1</source>
        <translation>运行中：%1</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>正在启动…</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The document has more than %1 pages.</source>
        <translation>文档超过 %1 页。</translation>
    </message>
    <message>
        <source>The document cannot be put on paper.</source>
        <translation>文档无法排成页面。</translation>
    </message>
    <message>
        <source>fresh</source>
        <translation>最新</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>stale</source>
        <translation>过时</translation>
    </message>
    <message>
        <source>edited</source>
        <translation>已编辑</translation>
    </message>
    <message>
        <source>left over</source>
        <translation>遗留</translation>
    </message>
    <message>
        <source>left over, edited</source>
        <translation>遗留，已编辑</translation>
    </message>
    <message>
        <source>The folder holds it as it is made now.</source>
        <translation>文件夹中的文件与现在生成的相同。</translation>
    </message>
    <message>
        <source>It is not in the folder; an export writes it.</source>
        <translation>文件夹中没有该文件；导出时写入。</translation>
    </message>
    <message>
        <source>The folder holds what an earlier export has written; an export replaces it.</source>
        <translation>文件夹中是以前导出时写入的文件；导出时替换。</translation>
    </message>
    <message>
        <source>Somebody has changed it in the folder; an export writes it anew and keeps the changes in a file beside it.</source>
        <translation>有人修改了文件夹中的文件；导出时重新写入，并把修改保存在旁边的文件中。</translation>
    </message>
    <message>
        <source>An earlier export has written it; an export removes it.</source>
        <translation>该文件由以前的导出写入；导出时删除。</translation>
    </message>
    <message>
        <source>An earlier export has written it and somebody has changed it; an export leaves it.</source>
        <translation>该文件由以前的导出写入并被人修改过；导出时保留。</translation>
    </message>
    <message>
        <source>the file %1 is too large: a file may have %2 MiB, all of them together %3 MiB</source>
        <translation>文件 %1 过大：单个文件至多 %2 MiB，全部合计至多 %3 MiB</translation>
    </message>
    <message>
        <source>its &quot;files&quot; are no list of files</source>
        <translation>其 “files” 不是文件列表</translation>
    </message>
    <message>
        <source>it makes more than %1 files</source>
        <translation>它生成的文件多于 %1 个</translation>
    </message>
    <message>
        <source>one of its files is no map with a path and bytes</source>
        <translation>其中一个文件不是由路径和字节组成的映射</translation>
    </message>
    <message>
        <source>it does not name a file of the folder</source>
        <translation>它指的不是该文件夹中的文件</translation>
    </message>
    <message>
        <source>it has a file with the path %1: %2</source>
        <translation>它有一个路径为 %1 的文件：%2</translation>
    </message>
    <message>
        <source>it has the file %1 twice</source>
        <translation>文件 %1 出现了两次</translation>
    </message>
    <message>
        <source>its &quot;size&quot;, &quot;used&quot; and &quot;free&quot; are no numbers that agree</source>
        <translation>其 “size”、“used” 和 “free” 不是相符的数值</translation>
    </message>
    <message>
        <source>its &quot;warnings&quot; are no texts of a line</source>
        <translation>其 “warnings” 不是单行文本</translation>
    </message>
    <message>
        <source>its &quot;folder&quot; is no full path</source>
        <translation>其 “folder” 不是完整路径</translation>
    </message>
    <message>
        <source>its &quot;changed&quot; is neither true nor false</source>
        <translation>其 “changed” 既不是 true 也不是 false</translation>
    </message>
    <message>
        <source>it offers more than %1 formats</source>
        <translation>它提供的格式多于 %1 种</translation>
    </message>
    <message>
        <source>one of its formats is no map</source>
        <translation>其中一种格式不是映射</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of one of its formats is no text of a line</source>
        <translation>其中一种格式的 “%1” 不是单行文本</translation>
    </message>
    <message>
        <source>one of its formats has no name</source>
        <translation>其中一种格式没有名称</translation>
    </message>
    <message>
        <source>it offers the format %1 twice</source>
        <translation>格式 %1 提供了两次</translation>
    </message>
    <message>
        <source>its &quot;manifest&quot; is no name of a file</source>
        <translation>其 “manifest” 不是文件名</translation>
    </message>
    <message>
        <source>its &quot;files&quot; are no list</source>
        <translation>其 “files” 不是列表</translation>
    </message>
    <message>
        <source>one of its files is no map with a path, a format and bytes</source>
        <translation>其中一个文件不是由路径、格式和字节组成的映射</translation>
    </message>
    <message>
        <source>the file %1 is of the format %2, which it does not offer</source>
        <translation>文件 %1 的格式为 %2，而它并未提供该格式</translation>
    </message>
    <message>
        <source>%1 is a file and a folder of files</source>
        <translation>%1 既是文件又是含有文件的文件夹</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>it has more than elements</source>
        <translation>除元素外它还有其他内容</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>它过大</translation>
    </message>
    <message>
        <source>it holds the element &quot;%1&quot;</source>
        <translation>它含有元素 “%1”</translation>
    </message>
    <message>
        <source>it is no drawing</source>
        <translation>它不是图形</translation>
    </message>
    <message>
        <source>This picture cannot be shown.</source>
        <translation>此图片无法显示。</translation>
    </message>
    <message>
        <source>its &quot;state&quot; is no plain text</source>
        <translation>其 “state” 不是纯文本</translation>
    </message>
    <message>
        <source>its &quot;reasons&quot; are no plain texts</source>
        <translation>其 “reasons” 不是纯文本</translation>
    </message>
    <message>
        <source>%1 is no full path</source>
        <translation>%1 不是完整路径</translation>
    </message>
    <message>
        <source>its &quot;watched&quot; are no full paths</source>
        <translation>其 “watched” 不是完整路径</translation>
    </message>
    <message>
        <source>The plug-in of %1 does not tell what is up to date.</source>
        <translation>%1 的插件没有说明哪些内容是最新的。</translation>
    </message>
    <message>
        <source>of how many is not known</source>
        <translation>总数未知</translation>
    </message>
    <message>
        <source>between %1 and %2, of how many is not known</source>
        <translation>%1 至 %2 之间，总数未知</translation>
    </message>
    <message>
        <source>The expression is wrong at character %1: %2.</source>
        <translation>表达式在第 %1 个字符处有误：%2。</translation>
    </message>
    <message>
        <source>The expression cannot be searched for as whole words: %1.</source>
        <translation>无法按全词搜索该表达式：%1。</translation>
    </message>
    <message>
        <source>The replacement names group %1; groups of the expression: %2.</source>
        <translation>替换文本引用了第 %1 组；表达式的组数：%2。</translation>
    </message>
    <message>
        <source>Not all of its files have been generated.</source>
        <translation>它的文件尚未全部生成。</translation>
    </message>
    <message>
        <source>Its generated files are out of date.</source>
        <translation>它生成的文件已过时。</translation>
    </message>
    <message>
        <source>Generated files were changed by hand.</source>
        <translation>生成的文件已被手工修改。</translation>
    </message>
    <message>
        <source>Files that no generation is known to have made stand where its results belong.</source>
        <translation>在其结果的位置有并非由任何已知的生成所写的文件。</translation>
    </message>
    <message>
        <source>It is newer than the files that were generated from it.</source>
        <translation>它比由它生成的文件更新。</translation>
    </message>
    <message>
        <source>The state of its generated files: %1.</source>
        <translation>它生成的文件的状态：%1。</translation>
    </message>
    <message>
        <source>&amp;Resources…</source>
        <translation>资源(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Cells…</source>
        <translation>单元(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Ports…</source>
        <translation>端口(&amp;P)…</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; must end in .csv, .json or .md.</source>
        <translation>表格 “%1” 必须以 .csv、.json 或 .md 结尾。</translation>
    </message>
    <message>
        <source>No command is set for it.</source>
        <translation>没有为其设置命令。</translation>
    </message>
    <message>
        <source>The program &quot;%1&quot; does not start.</source>
        <translation>程序 “%1” 无法启动。</translation>
    </message>
    <message>
        <source>Cannot open the external editor. %1</source>
        <translation>无法打开外部编辑器。%1</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>字体(&amp;F)：</translation>
    </message>
    <message>
        <source>Font si&amp;ze:</source>
        <translation>字号(&amp;Z)：</translation>
    </message>
    <message>
        <source>&amp;Tab width:</source>
        <translation>制表符宽度(&amp;T)：</translation>
    </message>
    <message>
        <source>Show line &amp;numbers</source>
        <translation>显示行号(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Wrap long lines</source>
        <translation>长行自动换行(&amp;W)</translation>
    </message>
    <message>
        <source>E&amp;xternal editor:</source>
        <translation>外部编辑器(&amp;X)：</translation>
    </message>
    <message>
        <source>&amp;Yosys:</source>
        <translation>&amp;Yosys：</translation>
    </message>
    <message>
        <source>&amp;Synplify Pro:</source>
        <translation>&amp;Synplify Pro：</translation>
    </message>
    <message>
        <source>&amp;Icarus Verilog, compiler:</source>
        <translation>Icarus Verilog 编译器(&amp;I)：</translation>
    </message>
    <message>
        <source>Icarus Verilog, &amp;run time:</source>
        <translation>Icarus Verilog 运行程序(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Verilator:</source>
        <translation>&amp;Verilator：</translation>
    </message>
    <message>
        <source>C co&amp;mpiler for Arm:</source>
        <translation>Arm 的 C 编译器(&amp;M)：</translation>
    </message>
    <message>
        <source>Viewer of &amp;waves:</source>
        <translation>波形查看器(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Open at the start what was open at the end</source>
        <translation>启动时打开上次结束时打开的内容(&amp;O)</translation>
    </message>
    <message>
        <source>Run the &amp;synthesis in the background beside the dialog of an IP</source>
        <translation>在 IP 的对话框旁于后台运行综合(&amp;S)</translation>
    </message>
    <message>
        <source>Seconds &amp;without a change before it:</source>
        <translation>此前无改动的秒数(&amp;W)：</translation>
    </message>
    <message>
        <source>Lan&amp;guage, from the next start on:</source>
        <translation>语言，下次启动起生效(&amp;G)：</translation>
    </message>
    <message>
        <source>&amp;Editor</source>
        <translation>编辑器(&amp;E)</translation>
    </message>
    <message>
        <source>Too&amp;ls</source>
        <translation>工具(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation>程序(&amp;P)</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>系统的语言</translation>
    </message>
    <message>
        <source>This is not the whole path of a program.</source>
        <translation>这不是程序的完整路径。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>没有这个文件。</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>这不是文件。</translation>
    </message>
    <message>
        <source>This file is no program: it may not be executed.</source>
        <translation>此文件不是程序：不允许执行。</translation>
    </message>
    <message>
        <source>No program &quot;%1&quot; was found on PATH.</source>
        <translation>在 PATH 中没有找到程序 “%1”。</translation>
    </message>
    <message>
        <source>Clear the text</source>
        <translation>清除文字</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>文件夹 “%1” 不存在。</translation>
    </message>
    <message>
        <source>No program of the desktop shows the folder &quot;%1&quot;.</source>
        <translation>桌面没有能显示文件夹 “%1” 的程序。</translation>
    </message>
    <message>
        <source>while it was loaded</source>
        <translation>在加载时</translation>
    </message>
    <message>
        <source>while it was started</source>
        <translation>在启动时</translation>
    </message>
    <message>
        <source>when it was asked for its IPs</source>
        <translation>在被询问有哪些 IP 时</translation>
    </message>
    <message>
        <source>when it was asked what its IPs are</source>
        <translation>在被询问其 IP 的信息时</translation>
    </message>
    <message>
        <source>when it was asked about devices</source>
        <translation>在被询问器件时</translation>
    </message>
    <message>
        <source>when its IPs were released</source>
        <translation>在释放其 IP 时</translation>
    </message>
    <message>
        <source>It did not stop printing %1.</source>
        <translation>它%1不停地输出。</translation>
    </message>
    <message>
        <source>It did not answer within %1 s %2.</source>
        <translation>它%2未在 %1 秒内应答。</translation>
    </message>
    <message>
        <source>It crashed %1 (signal %2).</source>
        <translation>它%1崩溃（信号 %2）。</translation>
    </message>
    <message>
        <source>It ended the program %1 (status %2).</source>
        <translation>它%1结束了程序（状态 %2）。</translation>
    </message>
    <message>
        <source>plug-in mechanism, and everything on screen</source>
        <translation>插件机制以及屏幕上的一切</translation>
    </message>
    <message>
        <source>figures, diagram and pictures of documents</source>
        <translation>插图、框图和文档中的图片</translation>
    </message>
    <message>
        <source>the editor&apos;s colours</source>
        <translation>编辑器的着色</translation>
    </message>
    <message>
        <source>arguments and help texts of the programs</source>
        <translation>程序的参数和帮助文本</translation>
    </message>
    <message>
        <source>digests of files in the command line</source>
        <translation>命令行中的文件摘要</translation>
    </message>
    <message>
        <source>C library, mathematics, dynamic loading</source>
        <translation>C 库、数学函数、动态加载</translation>
    </message>
    <message>
        <source>C++ library</source>
        <translation>C++ 库</translation>
    </message>
    <message>
        <source>the processor&apos;s instructions in simulation</source>
        <translation>仿真中处理器的指令</translation>
    </message>
    <message>
        <source>programs in ELF form for the simulated processor</source>
        <translation>供仿真处理器使用的 ELF 格式程序</translation>
    </message>
    <message>
        <source>stacks of simulated instructions that wait for the bus</source>
        <translation>等待总线的仿真指令的栈</translation>
    </message>
    <message>
        <source>programs in ELF form in command line and plug-in</source>
        <translation>命令行和插件中的 ELF 格式程序</translation>
    </message>
    <message>
        <source>lines of C of a program&apos;s addresses</source>
        <translation>程序地址对应的 C 代码行</translation>
    </message>
    <message>
        <source>synthesis and proofs</source>
        <translation>综合与证明</translation>
    </message>
    <message>
        <source>simulation; it loads the simulation component</source>
        <translation>仿真；它加载仿真组件</translation>
    </message>
    <message>
        <source>simulation of what it compiles</source>
        <translation>对其编译结果的仿真</translation>
    </message>
    <message>
        <source>proofs of VHDL netlists</source>
        <translation>VHDL 网表的证明</translation>
    </message>
    <message>
        <source>jobs of a sweep, and building</source>
        <translation>扫描的作业以及构建</translation>
    </message>
    <message>
        <source>shows waves</source>
        <translation>显示波形</translation>
    </message>
    <message>
        <source>compiles programs for the simulated processor</source>
        <translation>为仿真处理器编译程序</translation>
    </message>
    <message>
        <source>C library of programs for the processor</source>
        <translation>处理器程序的 C 库</translation>
    </message>
    <message>
        <source>debugs programs in simulation; the user starts it</source>
        <translation>调试仿真中的程序；由用户启动</translation>
    </message>
    <message>
        <source>Used %1.</source>
        <translation>已使用 %1。</translation>
    </message>
    <message>
        <source>Not counted are the contents of black boxes: %1.</source>
        <translation>未计入黑盒的内容：%1。</translation>
    </message>
    <message>
        <source>its lines are longer than can be drawn</source>
        <translation>其中的线条长得无法绘制</translation>
    </message>
</context>
<context>
    <name>Workbench::AboutDialog</name>
    <message>
        <source>About Tarvo Workbench</source>
        <translation>关于 Tarvo Workbench</translation>
    </message>
    <message>
        <source>Tarvo Workbench %1</source>
        <translation>Tarvo Workbench %1</translation>
    </message>
    <message>
        <source>Configures and generates IPs for FPGA designs.</source>
        <translation>为 FPGA 设计配置并生成 IP。</translation>
    </message>
    <message>
        <source>Qt %1 (built with %2), %3</source>
        <translation>Qt %1（构建时为 %2），%3</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>设置：%1</translation>
    </message>
    <message>
        <source>IPs: none</source>
        <translation>IP：无</translation>
    </message>
    <message>
        <source>IP: %1</source>
        <translation>IP：%1</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>组件</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>组件</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>For</source>
        <translation>用途</translation>
    </message>
    <message>
        <source>Debian package</source>
        <translation>Debian 软件包</translation>
    </message>
    <message>
        <source>&amp;Components and their licences:</source>
        <translation>组件及其许可证(&amp;C)：</translation>
    </message>
    <message>
        <source>Co&amp;py All</source>
        <translation>全部复制(&amp;P)</translation>
    </message>
    <message>
        <source>Puts all of this on the clipboard as text, for a report</source>
        <translation>把以上全部内容作为文本放入剪贴板，供报告使用</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
    <message>
        <source>does not tell</source>
        <translation>未说明</translation>
    </message>
    <message>
        <source>About the component</source>
        <translation>关于该组件</translation>
    </message>
</context>
<context>
    <name>Workbench::CatalogueModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
</context>
<context>
    <name>Workbench::CatalogueView</name>
    <message>
        <source>&amp;Create IP…</source>
        <translation>创建 IP(&amp;C)…</translation>
    </message>
    <message>
        <source>Help on This IP</source>
        <translation>关于此 IP 的帮助</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Filter of the IP catalogue</source>
        <translation>IP 目录的筛选</translation>
    </message>
    <message>
        <source>IP catalogue</source>
        <translation>IP 目录</translation>
    </message>
    <message>
        <source>No plug-in offers an IP. Tools &gt; Plug-ins says why.</source>
        <translation>没有插件提供 IP。原因见“工具 &gt; 插件”。</translation>
    </message>
    <message>
        <source>Select an IP to see what it is.</source>
        <translation>选择一个 IP 以查看其说明。</translation>
    </message>
    <message>
        <source>Create IP…</source>
        <translation>创建 IP…</translation>
    </message>
    <message>
        <source>About the selected IP</source>
        <translation>关于所选 IP</translation>
    </message>
</context>
<context>
    <name>Workbench::CellModel</name>
    <message>
        <source>No primitive: its contents are licensed separately and come later.</source>
        <translation>不是原语：其内容另行授权，以后提供。</translation>
    </message>
    <message>
        <source>%1 (black box)</source>
        <translation>%1（黑盒）</translation>
    </message>
    <message>
        <source>Primitive</source>
        <translation>原语</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>数量</translation>
    </message>
</context>
<context>
    <name>Workbench::Companion</name>
    <message>
        <source>Companion</source>
        <translation>伴随窗口</translation>
    </message>
</context>
<context>
    <name>Workbench::CompanionDesk</name>
    <message>
        <source>&amp;Companion of IP Dialogs</source>
        <translation>IP 对话框的伴随窗口(&amp;C)</translation>
    </message>
    <message>
        <source>Shows beside the dialog of an IP what its configuration takes of the device</source>
        <translation>在 IP 的对话框旁显示其配置占用多少器件资源</translation>
    </message>
</context>
<context>
    <name>Workbench::DeviceModel</name>
    <message>
        <source>Device</source>
        <translation>器件</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>封装</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Part number</source>
        <translation>型号</translation>
    </message>
</context>
<context>
    <name>Workbench::DevicePicker</name>
    <message>
        <source>Filter, for example: 2kr qfn88p c8</source>
        <translation>筛选，例如：2kr qfn88p c8</translation>
    </message>
    <message>
        <source>Filter of the devices</source>
        <translation>器件的筛选</translation>
    </message>
    <message>
        <source>all</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>器件</translation>
    </message>
    <message>
        <source>Copy &amp;Part Number</source>
        <translation>复制型号(&amp;P)</translation>
    </message>
    <message>
        <source>Copy Part Number</source>
        <translation>复制型号</translation>
    </message>
    <message>
        <source>No device matches the filter.</source>
        <translation>没有符合筛选的器件。</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>%1 个器件，共 %2 个</translation>
    </message>
</context>
<context>
    <name>Workbench::DiagramRenderer</name>
    <message>
        <source>The picture &quot;%1&quot; must end in .svg, .png or .pdf.</source>
        <translation>图片 “%1” 必须以 .svg、.png 或 .pdf 结尾。</translation>
    </message>
    <message>
        <source>The plug-in of &quot;%1&quot; wrote no picture.</source>
        <translation>“%1” 的插件没有写出图片。</translation>
    </message>
    <message>
        <source>The dialog of &quot;%1&quot; did not open.</source>
        <translation>“%1” 的对话框没有打开。</translation>
    </message>
    <message>
        <source>The dialog of this IP offers no diagram.</source>
        <translation>此 IP 的对话框不提供框图。</translation>
    </message>
    <message>
        <source>The plug-in failed when it was asked for the diagram: %1.</source>
        <translation>向插件请求框图时插件失败：%1。</translation>
    </message>
    <message>
        <source>The diagram could not be written.</source>
        <translation>无法写出框图。</translation>
    </message>
</context>
<context>
    <name>Workbench::EditActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
</context>
<context>
    <name>Workbench::EditorPage</name>
    <message>
        <source>Cannot show &quot;%1&quot;: %2.</source>
        <translation>无法显示 “%1”：%2。</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>它是文件夹</translation>
    </message>
    <message>
        <source>it is not a plain file</source>
        <translation>它不是普通文件</translation>
    </message>
    <message>
        <source>it has more than %1 MB</source>
        <translation>它超过 %1 MB</translation>
    </message>
    <message>
        <source>This file is large: it is being read, and is shown without colours.</source>
        <translation>此文件很大：正在读取，且不着色显示。</translation>
    </message>
    <message>
        <source>This file cannot be changed: you have no permission to write it.</source>
        <translation>此文件无法修改：您没有写入权限。</translation>
    </message>
    <message>
        <source>This file is open for reading. Press Ctrl+E to edit it.</source>
        <translation>此文件以只读方式打开。按 Ctrl+E 进行编辑。</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not saved: its text is Latin-1, which has no &quot;%2&quot; (line %3).</source>
        <translation>“%1” 没有保存：其文本为 Latin-1，不含 “%2”（第 %3 行）。</translation>
    </message>
    <message>
        <source>The program was ended with unsaved changes of this file. They are in &quot;%1&quot;.</source>
        <translation>程序结束时此文件有未保存的修改。修改保存在 “%1” 中。</translation>
    </message>
    <message>
        <source>&amp;Open Them</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Delete Them</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Cannot delete &quot;%1&quot;: %2.</source>
        <translation>无法删除 “%1”：%2。</translation>
    </message>
    <message>
        <source>This file was deleted or moved. Saving writes it again, here.</source>
        <translation>此文件已被删除或移动。保存时会在此处重新写入。</translation>
    </message>
    <message>
        <source>This file was changed by another program. You have changes of your own here.</source>
        <translation>此文件已被另一个程序修改。您在此处有自己的修改。</translation>
    </message>
    <message>
        <source>&amp;Read Again (loses yours)</source>
        <translation>重新读取（丢弃您的修改）(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>保留我的修改(&amp;K)</translation>
    </message>
    <message>
        <source>its line %L1 has %L2 characters, and more than %L3 cannot be shown in one</source>
        <translation>其第 %L1 行有 %L2 个字符，而一行最多能显示 %L3 个</translation>
    </message>
</context>
<context>
    <name>Workbench::EditorTabs</name>
    <message>
        <source>Save the Whole File as &amp;UTF-8</source>
        <translation>把整个文件存为 UTF-8(&amp;U)</translation>
    </message>
    <message>
        <source>Try A&amp;gain</source>
        <translation>重试(&amp;G)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>未保存的修改</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changes that are not saved.</source>
        <translation>“%1” 有未保存的修改。</translation>
    </message>
    <message numerus="yes">
        <source>%n files have changes that are not saved: %1.</source>
        <translation>
            <numerusform>%n 个文件有未保存的修改：%1。</numerusform>
        </translation>
    </message>
    <message>
        <source>The unsaved changes of &quot;%1&quot; are lost. %2</source>
        <translation>“%1” 的未保存修改已丢失。%2</translation>
    </message>
    <message>
        <source>The unsaved changes of &quot;%1&quot; are in &quot;%2&quot;.</source>
        <translation>“%1” 的未保存修改在 “%2” 中。</translation>
    </message>
    <message>
        <source>Close (Ctrl+W)</source>
        <translation>关闭 (Ctrl+W)</translation>
    </message>
    <message>
        <source>Close the tab</source>
        <translation>关闭标签页</translation>
    </message>
    <message>
        <source>Saving %1…</source>
        <translation>正在保存 %1…</translation>
    </message>
</context>
<context>
    <name>Workbench::ExampleDialog</name>
    <message>
        <source>Open the Example</source>
        <translation>打开示例</translation>
    </message>
    <message>
        <source>Makes a project of your own with a copy of the example. %1</source>
        <translation>用示例的副本建立您自己的项目。%1</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>文件夹(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>浏览(&amp;B)…</translation>
    </message>
    <message>
        <source>Choose the folder that the copy is made in</source>
        <translation>选择存放副本的文件夹</translation>
    </message>
    <message>
        <source>&amp;Make the Project</source>
        <translation>建立项目(&amp;M)</translation>
    </message>
    <message>
        <source>Make the Project In</source>
        <translation>建立项目的位置</translation>
    </message>
    <message>
        <source>Choose a folder with its full path.</source>
        <translation>请选择带完整路径的文件夹。</translation>
    </message>
    <message>
        <source>This folder exists already, and nothing in it is replaced. Choose a new one.</source>
        <translation>此文件夹已经存在，其中的内容不会被替换。请选择新的文件夹。</translation>
    </message>
</context>
<context>
    <name>Workbench::FindBar</name>
    <message>
        <source>Match case</source>
        <translation>区分大小写</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Previous match (Shift+F3)</source>
        <translation>上一个匹配 (Shift+F3)</translation>
    </message>
    <message>
        <source>Next match (F3)</source>
        <translation>下一个匹配 (F3)</translation>
    </message>
    <message>
        <source>Close (Escape)</source>
        <translation>关闭 (Esc)</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>全部替换</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>全词匹配</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>正则表达式</translation>
    </message>
    <message>
        <source>Up and Down bring back what was looked for before</source>
        <translation>用上、下方向键取回以前查找的内容</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>替换为</translation>
    </message>
    <message>
        <source>With a regular expression: $1 or \1 is its first group, $0 all of it, \n a line end, \t a tab</source>
        <translation>使用正则表达式时：$1 或 \1 是其第一组，$0 是整个匹配，\n 是行尾，\t 是制表符</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>The search ends at line %1: there the expression takes too many steps.</source>
        <translation>搜索在第 %1 行结束：表达式在该处所需步骤过多。</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>正在搜索…</translation>
    </message>
    <message>
        <source>More than %1</source>
        <translation>多于 %1 处匹配</translation>
    </message>
    <message>
        <source>Matches: %1</source>
        <translation>匹配：%1 处</translation>
    </message>
    <message>
        <source>%1 of more than %2</source>
        <translation>第 %1 处，共 %2 处以上</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>第 %1 处，共 %2 处</translation>
    </message>
    <message>
        <source>%1 of %2, continued at the end</source>
        <translation>第 %1 处，共 %2 处，已从末尾继续</translation>
    </message>
    <message>
        <source>%1 of %2, continued at the start</source>
        <translation>第 %1 处，共 %2 处，已从开头继续</translation>
    </message>
    <message>
        <source>This file is open for reading. Press Ctrl+E to edit it.</source>
        <translation>此文件以只读方式打开。按 Ctrl+E 进行编辑。</translation>
    </message>
    <message>
        <source>Nothing was replaced: there are more than %1 matches.</source>
        <translation>没有替换任何内容：匹配多于 %1 处。</translation>
    </message>
    <message>
        <source>Nothing was replaced: at line %1 the expression takes too many steps.</source>
        <translation>没有替换任何内容：表达式在第 %1 行所需步骤过多。</translation>
    </message>
    <message>
        <source>Replacing…</source>
        <translation>正在替换…</translation>
    </message>
    <message>
        <source>Replaced matches: %1.</source>
        <translation>已替换 %1 处匹配。</translation>
    </message>
</context>
<context>
    <name>Workbench::HelpBrowser</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
</context>
<context>
    <name>Workbench::HelpDesk</name>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>无法读取 “%1”。</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>用户指南</translation>
    </message>
    <message>
        <source>The user guide is not installed. It belongs into the folder &quot;guide&quot; of %1.</source>
        <translation>用户指南没有安装。它应在 %1 的文件夹 “guide” 中。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>Workbench::HelpWindow</name>
    <message>
        <source>&amp;Back</source>
        <translation>后退(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>前进(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>放大(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>缩小(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Usual Size</source>
        <translation>正常大小(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>目录(&amp;C)</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>查找(&amp;I)</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>Places in the text</source>
        <translation>文中的位置</translation>
    </message>
    <message>
        <source>Find in the text</source>
        <translation>在文中查找</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>The first %1 of %2</source>
        <translation>前 %1 处，共 %2 处</translation>
    </message>
    <message>
        <source>Places: %1</source>
        <translation>位置：%1</translation>
    </message>
</context>
<context>
    <name>Workbench::InfoBar</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>关闭此消息</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>Workbench::IpActions</name>
    <message>
        <source>&amp;Bring Back…</source>
        <translation>恢复(&amp;B)…</translation>
    </message>
    <message>
        <source>No copy of a configuration was kept. %1</source>
        <translation>没有保留配置的副本。%1</translation>
    </message>
    <message>
        <source>Unknown device</source>
        <translation>未知器件</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is made for the device &quot;%2&quot;, which the device database does not know.</source>
        <translation>“%1” 用于器件 “%2”，器件数据库中没有该器件。</translation>
    </message>
    <message>
        <source>Move it to a device that is known, or open it all the same: its dialog has no device then, and OK there stores it without one.</source>
        <translation>请把它移到已知的器件，或仍然打开它：这时其对话框没有器件，按“OK”保存的配置也没有器件。</translation>
    </message>
    <message>
        <source>Its plug-in cannot move it to another device. Opened all the same, its dialog has no device, and OK there stores it without one.</source>
        <translation>其插件不能把它移到其他器件。若仍然打开，其对话框没有器件，按“OK”保存的配置也没有器件。</translation>
    </message>
    <message>
        <source>&amp;Move to Device…</source>
        <translation>移到其他器件(&amp;M)…</translation>
    </message>
    <message>
        <source>&amp;Open All the Same</source>
        <translation>仍然打开(&amp;O)</translation>
    </message>
    <message>
        <source>No plug-in offers the IP of &quot;%1&quot;.</source>
        <translation>没有插件提供 “%1” 的 IP。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not moved, because no copy of it can be kept. %2</source>
        <translation>“%1” 没有移动，因为无法保留其副本。%2</translation>
    </message>
    <message>
        <source>The plug-in has not moved &quot;%1&quot; to the device %2.</source>
        <translation>插件没有把 “%1” 移到器件 %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is for the device %2 now. What was generated is still for the one before.</source>
        <translation>“%1” 现在用于器件 %2。已生成的内容仍用于之前的器件。</translation>
    </message>
    <message>
        <source>Open It to Generate It Ane&amp;w…</source>
        <translation>打开并重新生成(&amp;W)…</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot; to Device</source>
        <translation>把 “%1” 移到器件</translation>
    </message>
    <message>
        <source>This copy is gone.</source>
        <translation>此副本已不存在。</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Replace &quot;%1&quot; by what it was before?</source>
        <translation>用以前的内容替换 “%1”？</translation>
    </message>
    <message>
        <source>Write &quot;%1&quot; again as it was?</source>
        <translation>按原样重新写入 “%1”？</translation>
    </message>
    <message>
        <source>%1.
A copy of the present configuration is kept as well.</source>
        <translation>%1。
当前配置也会保留一个副本。</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is as it was. What was generated is not.</source>
        <translation>“%1” 已恢复原样。已生成的内容没有恢复。</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>显示(&amp;S)</translation>
    </message>
    <message numerus="yes">
        <source>%n IPs of this project are made for other devices.</source>
        <translation>
            <numerusform>此项目有 %n 个 IP 用于其他器件。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Move It to the Project&apos;s Device…</source>
        <translation>移到项目的器件(&amp;M)…</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is still made for the device %2.</source>
        <translation>“%1” 仍用于器件 %2。</translation>
    </message>
    <message>
        <source>The dialog of &quot;%1&quot; was closed without OK. Its changes are kept as a draft.</source>
        <translation>“%1” 的对话框未按“OK”即关闭。其中的修改保留为草稿。</translation>
    </message>
</context>
<context>
    <name>Workbench::IpSession</name>
    <message>
        <source>The dialog of an IP is open. Close it first.</source>
        <translation>一个 IP 的对话框已打开。请先关闭它。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a configuration of the IP &quot;%2&quot;, which no plug-in offers. Tools &gt; Plug-ins lists what is loaded.</source>
        <translation>“%1” 是 IP “%2” 的配置，没有插件提供该 IP。“工具 &gt; 插件”列出已加载的插件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no IP configuration: %2.</source>
        <translation>“%1” 不是 IP 配置：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no IP configuration: it has no entry &quot;type&quot;.</source>
        <translation>“%1” 不是 IP 配置：没有条目 “type”。</translation>
    </message>
</context>
<context>
    <name>Workbench::KeptConfigurations</name>
    <message>
        <source>Replaced %1</source>
        <translation>被替换，%1</translation>
    </message>
    <message>
        <source>%1; for %2</source>
        <translation>%1；用于 %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large for a configuration; no copy is kept.</source>
        <translation>“%1” 过大，不是配置；不保留副本。</translation>
    </message>
    <message>
        <source>The copy is gone.</source>
        <translation>副本已不存在。</translation>
    </message>
    <message>
        <source>Left without OK, %1</source>
        <translation>未按“OK”离开，%1</translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n more before</source>
        <translation>
            <numerusform>%1，此前还有 %n 处</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::KeptDialog</name>
    <message>
        <source>Bring Back a Configuration</source>
        <translation>恢复配置</translation>
    </message>
    <message>
        <source>Kept configurations</source>
        <translation>保留的配置</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>What</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>When</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>器件</translation>
    </message>
    <message>
        <source>&amp;Bring Back…</source>
        <translation>恢复(&amp;B)…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>replaced</source>
        <translation>被替换</translation>
    </message>
    <message>
        <source>Before a configuration is replaced, a copy is kept; and so is what was in a dialog that was left without OK. The copies are whole files in &quot;%1&quot;.</source>
        <translation>替换配置之前会保留一个副本；未按“OK”离开的对话框中的内容也会保留。这些副本是 “%1” 中的完整文件。</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>left without OK</source>
        <translation>未按“OK”离开</translation>
    </message>
</context>
<context>
    <name>Workbench::LastRun</name>
    <message>
        <source>The configuration has changed since the run; this is how it is now.</source>
        <translation>配置在运行之后已经改变；这是现在的状态。</translation>
    </message>
    <message>
        <source>The results cannot be shown after a restart. %1</source>
        <translation>重新启动后无法显示结果。%1</translation>
    </message>
    <message>
        <source>The results of the last run are being read…</source>
        <translation>正在读取上次运行的结果…</translation>
    </message>
</context>
<context>
    <name>Workbench::LogView</name>
    <message>
        <source>Log of the synthesis tool</source>
        <translation>综合工具的日志</translation>
    </message>
    <message>
        <source>The output of the synthesis tool appears here.</source>
        <translation>综合工具的输出显示在此处。</translation>
    </message>
</context>
<context>
    <name>Workbench::MainWindow</name>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Plug-ins…</source>
        <translation>插件(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>新建项目(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近打开(&amp;R)</translation>
    </message>
    <message>
        <source>Close &amp;Project</source>
        <translation>关闭项目(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;All</source>
        <translation>全部保存(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Close Tab</source>
        <translation>关闭标签页(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Edit File</source>
        <translation>编辑文件(&amp;E)</translation>
    </message>
    <message>
        <source>Lets the file be changed; it opens for reading</source>
        <translation>允许修改文件；文件以只读方式打开</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>查找(&amp;F)…</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>查找下一个(&amp;N)</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>查找上一个(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Go to Line…</source>
        <translation>转到行(&amp;G)…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Results of the Last Run</source>
        <translation>上次运行的结果(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Next Message</source>
        <translation>下一条消息(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Message</source>
        <translation>上一条消息(&amp;P)</translation>
    </message>
    <message>
        <source>Next &amp;Tab</source>
        <translation>下一个标签页(&amp;T)</translation>
    </message>
    <message>
        <source>Pre&amp;vious Tab</source>
        <translation>上一个标签页(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Larger Text</source>
        <translation>放大文字(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Smaller Text</source>
        <translation>缩小文字(&amp;S)</translation>
    </message>
    <message>
        <source>Go to Pro&amp;ject</source>
        <translation>转到项目(&amp;J)</translation>
    </message>
    <message>
        <source>Go to Catalo&amp;gue</source>
        <translation>转到目录(&amp;G)</translation>
    </message>
    <message>
        <source>Go to &amp;Editor</source>
        <translation>转到编辑器(&amp;E)</translation>
    </message>
    <message>
        <source>Go to &amp;Messages</source>
        <translation>转到消息(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>项目(&amp;P)</translation>
    </message>
    <message>
        <source>Create &amp;IP…</source>
        <translation>创建 IP(&amp;I)…</translation>
    </message>
    <message>
        <source>Goes to the catalogue; Enter there creates the selected IP</source>
        <translation>转到目录；在那里按 Enter 创建所选的 IP</translation>
    </message>
    <message>
        <source>&amp;Open Selected</source>
        <translation>打开所选项(&amp;O)</translation>
    </message>
    <message>
        <source>Open as Te&amp;xt</source>
        <translation>作为文本打开(&amp;X)</translation>
    </message>
    <message>
        <source>Shows an IP&apos;s configuration in the editor, not in its dialog</source>
        <translation>在编辑器而不是对话框中显示 IP 的配置</translation>
    </message>
    <message>
        <source>&amp;Hand-off</source>
        <translation>交付(&amp;H)</translation>
    </message>
    <message>
        <source>Simu&amp;late</source>
        <translation>仿真(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Move to Device…</source>
        <translation>移到其他器件(&amp;M)…</translation>
    </message>
    <message>
        <source>&amp;Bring Back a Configuration…</source>
        <translation>恢复配置(&amp;B)…</translation>
    </message>
    <message>
        <source>&amp;Top Module…</source>
        <translation>顶层模块(&amp;T)…</translation>
    </message>
    <message>
        <source>De&amp;vice…</source>
        <translation>器件(&amp;V)…</translation>
    </message>
    <message>
        <source>&amp;Add Source Files…</source>
        <translation>添加源文件(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;New Source File…</source>
        <translation>新建源文件(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Remove from Project</source>
        <translation>从项目中移除(&amp;R)</translation>
    </message>
    <message>
        <source>The file itself stays</source>
        <translation>文件本身保留</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>下移(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Help on the Selected &amp;IP</source>
        <translation>关于所选 IP 的帮助(&amp;I)</translation>
    </message>
    <message>
        <source>The document of the IP that is selected in the catalogue</source>
        <translation>目录中所选 IP 的文档</translation>
    </message>
    <message>
        <source>&amp;About Tarvo Workbench</source>
        <translation>关于 Tarvo Workbench(&amp;A)</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>关于 Qt(&amp;Q)</translation>
    </message>
    <message>
        <source>Shows what firmware and other tools get of the selected IP, and exports it</source>
        <translation>显示固件和其他工具从所选 IP 得到的内容，并将其导出</translation>
    </message>
    <message>
        <source>The plug-in of %1 hands on nothing</source>
        <translation>%1 的插件没有可交付的内容</translation>
    </message>
    <message>
        <source>Select an IP in the project to see what firmware and other tools get of it</source>
        <translation>在项目中选择一个 IP，以查看固件和其他工具从它得到的内容</translation>
    </message>
    <message>
        <source>Runs programs on the selected IP before there is hardware</source>
        <translation>在有硬件之前就在所选 IP 上运行程序</translation>
    </message>
    <message>
        <source>The plug-in of %1 cannot simulate</source>
        <translation>%1 的插件不能仿真</translation>
    </message>
    <message>
        <source>Select an IP in the project to run programs on it</source>
        <translation>在项目中选择一个 IP，以在其上运行程序</translation>
    </message>
    <message>
        <source>Changes the device of the selected IP, and shows what it loses</source>
        <translation>更换所选 IP 的器件，并显示会失去什么</translation>
    </message>
    <message>
        <source>The plug-in of %1 cannot move its IPs to other devices</source>
        <translation>%1 的插件不能把其 IP 移到其他器件</translation>
    </message>
    <message>
        <source>Select an IP in the project to change its device</source>
        <translation>在项目中选择一个 IP，以更换其器件</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>IP Catalogue</source>
        <translation>IP 目录</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>The device of the project; click to choose another one</source>
        <translation>项目的器件；单击可选择其他器件</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; of this project is not in the device database.</source>
        <translation>此项目的器件 “%1” 不在器件数据库中。</translation>
    </message>
    <message>
        <source>Choose &amp;a Device…</source>
        <translation>选择器件(&amp;A)…</translation>
    </message>
    <message>
        <source>%1 - Tarvo Workbench</source>
        <translation>%1 - Tarvo Workbench</translation>
    </message>
    <message>
        <source>Tarvo Workbench</source>
        <translation>Tarvo Workbench</translation>
    </message>
    <message>
        <source> No device</source>
        <translation> 没有器件</translation>
    </message>
    <message>
        <source>Device: %1</source>
        <translation>器件：%1</translation>
    </message>
    <message>
        <source>Project %1</source>
        <translation>项目 %1</translation>
    </message>
    <message>
        <source>Line %1, column %2   %3   %4</source>
        <translation>第 %1 行，第 %2 列   %3   %4</translation>
    </message>
    <message>
        <source>editing</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>reading (Ctrl+E edits)</source>
        <translation>只读（按 Ctrl+E 编辑）</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Projects, IPs and sources (*.tvproj *.ipc *.v *.vh *.sv *.svh *.vo *.vg *.vhd *.vhdl *.log *.json);;Projects (*.tvproj);;IP configurations (*.ipc);;All files (*)</source>
        <translation>项目、IP 和源文件 (*.tvproj *.ipc *.v *.vh *.sv *.svh *.vo *.vg *.vhd *.vhdl *.log *.json);;项目 (*.tvproj);;IP 配置 (*.ipc);;所有文件 (*)</translation>
    </message>
    <message>
        <source>No project</source>
        <translation>没有项目</translation>
    </message>
    <message>
        <source>An IP is made for a device and into a folder. Both come with a project: make or open one first.</source>
        <translation>IP 是为某个器件并在某个文件夹中创建的。两者都随项目而定：请先新建或打开一个项目。</translation>
    </message>
    <message>
        <source>Synthesis: starting</source>
        <translation>综合：正在启动</translation>
    </message>
    <message>
        <source>Synthesis: %1</source>
        <translation>综合：%1</translation>
    </message>
    <message>
        <source>Synthesis cancelled</source>
        <translation>综合已取消</translation>
    </message>
    <message>
        <source>Synthesis done</source>
        <translation>综合完成</translation>
    </message>
    <message>
        <source>Synthesis failed</source>
        <translation>综合失败</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Go to Line</source>
        <translation>转到行</translation>
    </message>
    <message>
        <source>Line (1 to %1):</source>
        <translation>行（1 到 %1）：</translation>
    </message>
    <message>
        <source>A run is active</source>
        <translation>有运行正在进行</translation>
    </message>
    <message>
        <source>Synthesis is running. Closing the window ends the run; its results are not made.</source>
        <translation>综合正在运行。关闭窗口将结束运行；不会产生结果。</translation>
    </message>
    <message>
        <source>&amp;End Run and Close</source>
        <translation>结束运行并关闭(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Keep Running</source>
        <translation>继续运行(&amp;K)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>an action and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Reopen the &amp;Last Project at Start</source>
        <translation>启动时重新打开上次的项目(&amp;L)</translation>
    </message>
    <message>
        <source>Comes back to the project and its tabs when the workbench is started</source>
        <translation>启动 Workbench 时回到该项目及其标签页</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>导出(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Block Diagram…</source>
        <translation>框图(&amp;B)…</translation>
    </message>
    <message>
        <source>Writes the diagram of the IP that is selected in the project as SVG, PNG or PDF</source>
        <translation>把项目中所选 IP 的框图写成 SVG、PNG 或 PDF</translation>
    </message>
    <message>
        <source>Writes a table of the last run as CSV, JSON or Markdown</source>
        <translation>把上次运行的表格写成 CSV、JSON 或 Markdown</translation>
    </message>
    <message>
        <source>Rep&amp;lace…</source>
        <translation>替换(&amp;L)…</translation>
    </message>
    <message>
        <source>Open in E&amp;xternal Editor</source>
        <translation>在外部编辑器中打开(&amp;X)</translation>
    </message>
    <message>
        <source>Starts the program that the settings name, with the file and line</source>
        <translation>启动设置中指定的程序，并传入文件和行号</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>设置(&amp;S)…</translation>
    </message>
    <message>
        <source>Tool &amp;Bar</source>
        <translation>工具栏(&amp;B)</translation>
    </message>
    <message>
        <source>Open the &amp;Folder</source>
        <translation>打开文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Shows the folder of what is selected in the file manager</source>
        <translation>在文件管理器中显示所选项的文件夹</translation>
    </message>
    <message>
        <source>Copy the &amp;Path</source>
        <translation>复制路径(&amp;P)</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>%1[*] - %2 - Tarvo Workbench</source>
        <translation>%1[*] - %2 - Tarvo Workbench</translation>
    </message>
    <message>
        <source>%1[*] - Tarvo Workbench</source>
        <translation>%1[*] - Tarvo Workbench</translation>
    </message>
    <message>
        <source>The last starts ended while they opened what was open before, so nothing is opened now.</source>
        <translation>最近几次启动在打开以前的内容时中断，因此现在不打开任何内容。</translation>
    </message>
    <message>
        <source>&amp;Open It All the Same</source>
        <translation>仍然打开(&amp;O)</translation>
    </message>
    <message>
        <source>The project of the last time is not opened. %1</source>
        <translation>没有打开上次的项目。%1</translation>
    </message>
    <message>
        <source>This file is generated from &quot;%1&quot;. The next generation writes it anew, and keeps what you change here in a copy beside it.</source>
        <translation>此文件由 “%1” 生成。下次生成时会重新写入，并把您在此处的修改保存在旁边的副本中。</translation>
    </message>
    <message>
        <source>Open the &amp;Configuration</source>
        <translation>打开配置(&amp;C)</translation>
    </message>
    <message>
        <source>Export Block Diagram</source>
        <translation>导出框图</translation>
    </message>
    <message>
        <source>Pictures (*.svg *.png *.pdf)</source>
        <translation>图片 (*.svg *.png *.pdf)</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>导出表格</translation>
    </message>
    <message>
        <source>Tables (*.csv *.json *.md)</source>
        <translation>表格 (*.csv *.json *.md)</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>目录(&amp;C)</translation>
    </message>
    <message>
        <source>The user guide, at what it says of the place with the focus</source>
        <translation>用户指南中与当前焦点位置有关的部分</translation>
    </message>
</context>
<context>
    <name>Workbench::Measurement</name>
    <message>
        <source>A folder for it cannot be made: %1</source>
        <translation>无法为此创建文件夹：%1</translation>
    </message>
    <message>
        <source>The answer of &quot;%1&quot; cannot be used: %2.</source>
        <translation>“%1” 的回答无法使用：%2。</translation>
    </message>
</context>
<context>
    <name>Workbench::MessageModel</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times)</source>
        <translation>
            <numerusform>%1（%n 次）</numerusform>
        </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
</context>
<context>
    <name>Workbench::MessagesView</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
</context>
<context>
    <name>Workbench::MeterBar</name>
    <message>
        <source>%1 %2 %3</source>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>%1: none</source>
        <translation>%1：无</translation>
    </message>
</context>
<context>
    <name>Workbench::MeterPanel</name>
    <message>
        <source>&amp;Measure after a pause of</source>
        <translation>暂停后测量(&amp;M)</translation>
    </message>
    <message>
        <source>Runs the synthesis of this configuration in the background, in a folder of its own, while nothing else wants the processor</source>
        <translation>在没有其他程序需要处理器时，于后台在单独的文件夹中综合此配置</translation>
    </message>
    <message>
        <source>Seconds without a change before it is measured</source>
        <translation>无改动多少秒之后开始测量</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>The dialog does not tell its configuration: %1.</source>
        <translation>对话框没有给出其配置：%1。</translation>
    </message>
    <message>
        <source>The plug-in failed when it was asked for an estimate: %1.</source>
        <translation>向插件请求估算时插件失败：%1。</translation>
    </message>
    <message>
        <source>What the plug-in estimates cannot be used: %1.</source>
        <translation>插件的估算无法使用：%1。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 (%3)</source>
        <translation>%1 %2 (%3)</translation>
    </message>
    <message>
        <source>Not counted are the contents of black boxes: %1.</source>
        <translation>未计入黑盒的内容：%1。</translation>
    </message>
    <message>
        <source>Pins</source>
        <translation>引脚</translation>
    </message>
    <message>
        <source>= Exact: a synthesis of this configuration has counted.</source>
        <translation>= 精确：由此配置的综合统计得出。</translation>
    </message>
    <message>
        <source>%1 Estimated.</source>
        <translation>%1 估算值。</translation>
    </message>
    <message>
        <source>The synthesis counts in the background, for %1 s now.</source>
        <translation>综合正在后台统计，已 %1 秒。</translation>
    </message>
    <message>
        <source>The synthesis counts after %1 s without a change.</source>
        <translation>无改动 %1 秒后由综合统计。</translation>
    </message>
    <message>
        <source>It could not be measured: %1</source>
        <translation>无法测量：%1</translation>
    </message>
    <message>
        <source>The plug-in failed: %1.</source>
        <translation>插件失败：%1。</translation>
    </message>
    <message>
        <source>What the plug-in answers cannot be used: %1.</source>
        <translation>插件的回答无法使用：%1。</translation>
    </message>
</context>
<context>
    <name>Workbench::MoveDialog</name>
    <message>
        <source>Move to Device</source>
        <translation>移到其他器件</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot; to the device %2?</source>
        <translation>把 “%1” 移到器件 %2？</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot; from the device %2 to %3?</source>
        <translation>把 “%1” 从器件 %2 移到 %3？</translation>
    </message>
    <message>
        <source>Nothing of the configuration is lost.</source>
        <translation>配置不会有任何丢失。</translation>
    </message>
    <message>
        <source>What is &amp;lost or changed:</source>
        <translation>丢失或改变的内容(&amp;L)：</translation>
    </message>
    <message>
        <source>What is lost or changed</source>
        <translation>丢失或改变的内容</translation>
    </message>
    <message>
        <source>A copy of the present configuration is kept. What was generated stays as it is until you generate the IP anew.</source>
        <translation>当前配置会保留一个副本。在您重新生成 IP 之前，已生成的内容保持不变。</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>移动(&amp;M)</translation>
    </message>
</context>
<context>
    <name>Workbench::NewProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>新建项目</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>C&amp;reate in:</source>
        <translation>建立于(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>浏览(&amp;B)…</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>器件</translation>
    </message>
    <message>
        <source>Create Project</source>
        <translation>建立项目</translation>
    </message>
    <message>
        <source>Create In</source>
        <translation>建立于</translation>
    </message>
    <message>
        <source>Choose the folder that the project&apos;s folder is made in.</source>
        <translation>选择存放项目文件夹的位置。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file.</source>
        <translation>“%1” 是文件。</translation>
    </message>
    <message>
        <source>Select a device in the table.</source>
        <translation>请在表中选择一个器件。</translation>
    </message>
    <message>
        <source>Makes the project in %1</source>
        <translation>在 %1 中建立项目</translation>
    </message>
    <message>
        <source>Makes the project in the existing folder %1; its files stay as they are</source>
        <translation>在现有文件夹 %1 中建立项目；其中的文件保持不变</translation>
    </message>
    <message>
        <source>New Subsystem: %1</source>
        <translation>新建子系统：%1</translation>
    </message>
    <message>
        <source>Create and Configure</source>
        <translation>建立并配置</translation>
    </message>
</context>
<context>
    <name>Workbench::OutputPane</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Messages (errors: %1, warnings: %2)</source>
        <translation>消息（错误：%1，警告：%2）</translation>
    </message>
</context>
<context>
    <name>Workbench::PinPanel</name>
    <message>
        <source>Pins of the GPIO</source>
        <translation>GPIO 的引脚</translation>
    </message>
</context>
<context>
    <name>Workbench::PinSwitch</name>
    <message>
        <source>high</source>
        <translation>高</translation>
    </message>
    <message>
        <source>low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>driven by the subsystem</source>
        <translation>由子系统驱动</translation>
    </message>
    <message>
        <source>not driven by the subsystem</source>
        <translation>不由子系统驱动</translation>
    </message>
    <message>
        <source>the switch drives it high</source>
        <translation>开关将其驱动为高</translation>
    </message>
    <message>
        <source>the switch drives it low</source>
        <translation>开关将其驱动为低</translation>
    </message>
    <message>
        <source>the switch leaves it alone</source>
        <translation>开关不驱动它</translation>
    </message>
    <message>
        <source>Pin %1: %2</source>
        <translation>引脚 %1：%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Pin %1: %2
%3, %4
Click or press Space to drive it high, low, or not at all</source>
        <translation>引脚 %1：%2
%3，%4
单击或按空格键：驱动为高、驱动为低或不驱动</translation>
    </message>
</context>
<context>
    <name>Workbench::PluginList</name>
    <message>
        <source>Plug-in not used: %1</source>
        <translation>未使用的插件：%1</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; cannot be used.</source>
        <translation>插件 “%1” 无法使用。</translation>
    </message>
    <message numerus="yes">
        <source>%n plug-ins cannot be used.</source>
        <translation>
            <numerusform>%n 个插件无法使用。</numerusform>
        </translation>
    </message>
    <message>
        <source>Detai&amp;ls</source>
        <translation>详细信息(&amp;L)</translation>
    </message>
    <message>
        <source>Not every plug-in of the new folders can be used.</source>
        <translation>新文件夹中并非每个插件都能使用。</translation>
    </message>
</context>
<context>
    <name>Workbench::PluginsDialog</name>
    <message>
        <source>Plug-ins</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>（无名称）</translation>
    </message>
    <message>
        <source>Offers %1 %2</source>
        <translation>提供 %1 %2</translation>
    </message>
    <message>
        <source>Select a plug-in to read all about it.</source>
        <translation>选择一个插件以阅读其全部信息。</translation>
    </message>
    <message>
        <source>&amp;Folders that are searched for plug-ins too (one that is removed counts until the next start):</source>
        <translation>也在其中查找插件的文件夹（移除的文件夹到下次启动前仍有效）(&amp;F)：</translation>
    </message>
    <message>
        <source>Plug-in folders</source>
        <translation>插件文件夹</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>添加(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Plug-in Folder</source>
        <translation>插件文件夹</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>重试(&amp;T)</translation>
    </message>
    <message>
        <source>Loads the plug-ins that cannot be used once more</source>
        <translation>再次加载无法使用的插件</translation>
    </message>
</context>
<context>
    <name>Workbench::PreviewPanel</name>
    <message>
        <source>New</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>已改变</translation>
    </message>
    <message>
        <source>Edited by hand</source>
        <translation>手工编辑过</translation>
    </message>
    <message>
        <source>Made by the tool</source>
        <translation>由工具生成</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>Stays</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>器件</translation>
    </message>
    <message>
        <source>Address map</source>
        <translation>地址映射</translation>
    </message>
    <message>
        <source>Interrupts</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Registers</source>
        <translation>寄存器</translation>
    </message>
    <message>
        <source>Black boxes</source>
        <translation>黑盒</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>资源</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>差异</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>差异内容</translation>
    </message>
    <message>
        <source>&amp;Next Change</source>
        <translation>下一处改变(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>复制为文本(&amp;C)</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>请选择一个文件。</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>This IP does not tell what it would generate.</source>
        <translation>此 IP 没有给出它将生成的内容。</translation>
    </message>
    <message>
        <source>The plug-in failed: %1</source>
        <translation>插件失败：%1</translation>
    </message>
    <message>
        <source>The plug-in&apos;s preview cannot be used: %1.</source>
        <translation>插件的预览无法使用：%1。</translation>
    </message>
    <message>
        <source>OK would change no file.</source>
        <translation>按“OK”不会改变任何文件。</translation>
    </message>
    <message numerus="yes">
        <source>OK would write %1 of %n files.</source>
        <translation>
            <numerusform>按“OK”将写入 %1 个文件，共 %n 个。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>What it will hold is not known.</source>
        <translation>其未来的内容未知。</translation>
    </message>
</context>
<context>
    <name>Workbench::ProgramPart</name>
    <message>
        <source>&amp;Browse…</source>
        <translation>浏览(&amp;B)…</translation>
    </message>
    <message>
        <source>Bro&amp;wse…</source>
        <translation>浏览(&amp;W)…</translation>
    </message>
    <message>
        <source>Let the config&amp;uration start from them</source>
        <translation>让配置由它们启动(&amp;U)</translation>
    </message>
    <message>
        <source>Make the F&amp;iles</source>
        <translation>生成文件(&amp;I)</translation>
    </message>
    <message>
        <source>the linked program, as the compiler leaves it</source>
        <translation>编译器产生的已链接程序</translation>
    </message>
    <message>
        <source>Choose the program</source>
        <translation>选择程序</translation>
    </message>
    <message>
        <source>Choose the folder of the program&apos;s files</source>
        <translation>选择存放程序文件的文件夹</translation>
    </message>
    <message>
        <source>Sets the options of the configuration for it; a copy of the old one is kept</source>
        <translation>为此设置配置的选项；旧配置会保留一个副本</translation>
    </message>
    <message>
        <source>Checks that the program fits, and writes the files of the memory</source>
        <translation>检查程序能否放下，并写出存储器的文件</translation>
    </message>
    <message>
        <source>What became of the program</source>
        <translation>程序的处理结果</translation>
    </message>
    <message>
        <source>Makes the files from which the memory of the IP starts with a program, and checks that the program fits.</source>
        <translation>生成使 IP 的存储器以某个程序启动的文件，并检查程序能否放下。</translation>
    </message>
    <message>
        <source>Progra&amp;m:</source>
        <translation>程序(&amp;M)：</translation>
    </message>
    <message>
        <source>Folde&amp;r:</source>
        <translation>文件夹(&amp;R)：</translation>
    </message>
    <message>
        <source>A file, or one beside the configuration</source>
        <translation>文件，可相对于配置所在位置</translation>
    </message>
    <message>
        <source>A folder, or one beside the configuration</source>
        <translation>文件夹，可相对于配置所在位置</translation>
    </message>
    <message>
        <source>Nothing is written, because no copy of the configuration can be kept. %1</source>
        <translation>没有写入任何内容，因为无法保留配置的副本。%1</translation>
    </message>
    <message>
        <source>%1 of %2 bytes are used, %3 are free.</source>
        <translation>共 %2 字节，已用 %1 字节，空闲 %3 字节。</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>警告：%1</translation>
    </message>
    <message>
        <source>The files %1 are in &quot;%2&quot;.</source>
        <translation>文件 %1 在 “%2” 中。</translation>
    </message>
    <message>
        <source>The configuration starts from them now; generate it anew.</source>
        <translation>配置现在由它们启动；请重新生成。</translation>
    </message>
    <message>
        <source>The configuration starts from them already; generate it anew.</source>
        <translation>配置已经由它们启动；请重新生成。</translation>
    </message>
    <message>
        <source>The configuration does not start from them.</source>
        <translation>配置不由它们启动。</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Programs (*.elf *.axf *.out *.hex *.ihex *.bin);;All files (*)</source>
        <translation>程序 (*.elf *.axf *.out *.hex *.ihex *.bin);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Folder for the program&apos;s files</source>
        <translation>存放程序文件的文件夹</translation>
    </message>
</context>
<context>
    <name>Workbench::Project</name>
    <message>
        <source>The project needs a name.</source>
        <translation>项目需要名称。</translation>
    </message>
    <message>
        <source>The name must not begin or end with a blank.</source>
        <translation>名称不能以空格开头或结尾。</translation>
    </message>
    <message>
        <source>The name must not contain &quot;/&quot; or &quot;\&quot; nor begin with a dot.</source>
        <translation>名称不能包含 “/” 或 “\”，也不能以点开头。</translation>
    </message>
    <message>
        <source>The name must not contain control characters.</source>
        <translation>名称不能包含控制字符。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名称过长。</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; exists already.</source>
        <translation>项目 “%1” 已经存在。</translation>
    </message>
    <message>
        <source>The project file &quot;%1&quot; was deleted. The next change of the project writes it again.</source>
        <translation>项目文件 “%1” 已被删除。项目下次改变时会重新写入。</translation>
    </message>
</context>
<context>
    <name>Workbench::ProjectActions</name>
    <message>
        <source>Add Source Files</source>
        <translation>添加源文件</translation>
    </message>
    <message>
        <source>HDL sources (*.v *.vh *.sv *.svh *.vhd *.vhdl);;All files (*)</source>
        <translation>HDL 源文件 (*.v *.vh *.sv *.svh *.vhd *.vhdl);;所有文件 (*)</translation>
    </message>
    <message>
        <source>New Source File</source>
        <translation>新建源文件</translation>
    </message>
    <message>
        <source>Top Module</source>
        <translation>顶层模块</translation>
    </message>
    <message>
        <source>Name of the design&apos;s top module:</source>
        <translation>设计的顶层模块名称：</translation>
    </message>
    <message>
        <source>Device of the Project</source>
        <translation>项目的器件</translation>
    </message>
</context>
<context>
    <name>Workbench::ProjectModel</name>
    <message>
        <source>Sources (top module %1)</source>
        <translation>源文件（顶层模块 %1）</translation>
    </message>
    <message>
        <source>IPs (none yet)</source>
        <translation>IP（尚无）</translation>
    </message>
    <message>
        <source>IPs</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Sources (none yet)</source>
        <translation>源文件（尚无）</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>源文件</translation>
    </message>
    <message>
        <source>The design&apos;s source files, in the order of compilation</source>
        <translation>设计的源文件，按编译顺序排列</translation>
    </message>
    <message>
        <source>The IPs of the project. Open one to change and generate it again.</source>
        <translation>项目的 IP。打开一个 IP 即可修改并重新生成。</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1（缺失）</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 不存在</translation>
    </message>
    <message>
        <source>%1
%2
Project &gt; Move to Device… moves it.</source>
        <translation>%1
%2
可用“项目 &gt; 移到其他器件…”移动它。</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>还有 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>a file and what is to be said of it</comment>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>Workbench::ProjectPane</name>
    <message>
        <source>No project is open.</source>
        <translation>没有打开项目。</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist.</source>
        <translation>“%1” 不存在。</translation>
    </message>
</context>
<context>
    <name>Workbench::RecentProjects</name>
    <message>
        <source>No project yet</source>
        <translation>尚无项目</translation>
    </message>
</context>
<context>
    <name>Workbench::ResourceModel</name>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>The run before did not tell this.</source>
        <translation>之前的运行没有给出此项。</translation>
    </message>
    <message>
        <source>As many as in the run before</source>
        <translation>与之前的运行一样多</translation>
    </message>
    <message>
        <source>%1 more than in the run before</source>
        <translation>比之前的运行多 %1</translation>
    </message>
    <message>
        <source>%1 fewer than in the run before</source>
        <translation>比之前的运行少 %1</translation>
    </message>
    <message>
        <source>The device does not have that many.</source>
        <translation>器件没有这么多。</translation>
    </message>
    <message>
        <source>The device database has no total for this.</source>
        <translation>器件数据库没有此项的总数。</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Resource</source>
        <translation>资源</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>已用</translation>
    </message>
    <message>
        <source>In the device</source>
        <translation>器件中</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>占比</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>变化</translation>
    </message>
</context>
<context>
    <name>Workbench::ResultPage</name>
    <message>
        <source>Change the &amp;IP…</source>
        <translation>修改 IP(&amp;I)…</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>资源</translation>
    </message>
    <message>
        <source>Primitives</source>
        <translation>原语</translation>
    </message>
    <message>
        <source>Ports of the netlist</source>
        <translation>网表的端口</translation>
    </message>
    <message>
        <source>Ctrl and the wheel zoom</source>
        <translation>Ctrl 加滚轮可缩放</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Share of the device</source>
        <translation>占器件的比例</translation>
    </message>
    <message>
        <source>Files (double-click to open)</source>
        <translation>文件（双击打开）</translation>
    </message>
    <message>
        <source>Opens its dialog again; OK there generates it anew</source>
        <translation>再次打开其对话框；在其中按“OK”重新生成</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1，用于 %2</translation>
    </message>
    <message>
        <source>%1 The run took %2 s.</source>
        <translation>%1 运行用时 %2 秒。</translation>
    </message>
    <message>
        <source>Ports (%1)</source>
        <translation>端口 (%1)</translation>
    </message>
    <message numerus="yes">
        <source>Primitives (%n kinds)</source>
        <translation>
            <numerusform>原语（%n 种）</numerusform>
        </translation>
    </message>
    <message>
        <source>The project still lists %1, of an earlier run in the other language. Both describe the same module.</source>
        <translation>项目仍列有以前以另一种语言运行得到的 %1。两者描述同一个模块。</translation>
    </message>
    <message>
        <source>&amp;Remove from Project</source>
        <translation>从项目中移除(&amp;R)</translation>
    </message>
    <message>
        <source>This run ended on %1.</source>
        <translation>此次运行结束于 %1。</translation>
    </message>
    <message>
        <source>Its files are as it left them.</source>
        <translation>其文件保持原样。</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1（缺失）</translation>
    </message>
    <message>
        <source>Changed since then: %1.</source>
        <translation>此后已改变：%1。</translation>
    </message>
    <message>
        <source>%1 (of an earlier run)</source>
        <translation>%1（来自以前的运行）</translation>
    </message>
</context>
<context>
    <name>Workbench::SessionKeeper</name>
    <message numerus="yes">
        <source>%n tab(s) of the last time cannot be shown again: %1, …</source>
        <translation>
            <numerusform>上次的 %n 个标签页无法再次显示：%1，…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tab(s) of the last time cannot be shown again: %1.</source>
        <translation>
            <numerusform>上次的 %n 个标签页无法再次显示：%1。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>恢复默认值(&amp;D)</translation>
    </message>
    <message>
        <source>That of the desktop</source>
        <translation>桌面的字号</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> 磅</translation>
    </message>
    <message>
        <source>The fixed font of the desktop</source>
        <translation>桌面的等宽字体</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>浏览…</translation>
    </message>
    <message>
        <source>%1 The program on PATH is used.</source>
        <translation>%1 将使用 PATH 中的程序。</translation>
    </message>
    <message>
        <source>%f stands for the file, %l for the line</source>
        <translation>%f 代表文件，%l 代表行号</translation>
    </message>
    <message>
        <source>No program &quot;%1&quot; is on PATH</source>
        <translation>PATH 中没有程序 “%1”</translation>
    </message>
    <message>
        <source>From PATH: %1</source>
        <translation>来自 PATH：%1</translation>
    </message>
    <message>
        <source>This program is used</source>
        <translation>使用此程序</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Browse for %1</source>
        <translation>浏览：%1</translation>
    </message>
</context>
<context>
    <name>Workbench::SideBySide</name>
    <message>
        <source> (no line end)</source>
        <translation> （无行尾）</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>之前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>之后</translation>
    </message>
    <message>
        <source>The text is too long to be shown side by side.</source>
        <translation>文本过长，无法并排显示。</translation>
    </message>
</context>
<context>
    <name>Workbench::SimulationPage</name>
    <message>
        <source>&amp;Run</source>
        <translation>运行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>浏览(&amp;B)…</translation>
    </message>
    <message>
        <source>&amp;Waves</source>
        <translation>波形(&amp;W)</translation>
    </message>
    <message>
        <source>Sen&amp;d</source>
        <translation>发送(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Open Waves</source>
        <translation>打开波形(&amp;O)</translation>
    </message>
    <message>
        <source>Simulate %1</source>
        <translation>仿真 %1</translation>
    </message>
    <message>
        <source>Ends the simulation</source>
        <translation>结束仿真</translation>
    </message>
    <message>
        <source>What the simulation starts from</source>
        <translation>仿真的起点</translation>
    </message>
    <message>
        <source>Files that the simulation starts from</source>
        <translation>仿真所用的文件</translation>
    </message>
    <message>
        <source>Choose what the simulation starts from</source>
        <translation>选择仿真的起点</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>仿真器</translation>
    </message>
    <message>
        <source>Terminal that is shown</source>
        <translation>显示的终端</translation>
    </message>
    <message>
        <source>Line for the UART</source>
        <translation>发给 UART 的行</translation>
    </message>
    <message>
        <source>a line for the program</source>
        <translation>发给程序的一行</translation>
    </message>
    <message>
        <source>Sends the line, and a line feed; keys that are typed in the terminal are sent at once</source>
        <translation>发送该行和一个换行符；在终端中键入的字符会立即发送</translation>
    </message>
    <message>
        <source>Messages of the simulation</source>
        <translation>仿真的消息</translation>
    </message>
    <message>
        <source>%1 (%2);;All files (*)</source>
        <translation>%1 (%2);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Simulates the IP with the program</source>
        <translation>用该程序仿真 IP</translation>
    </message>
    <message>
        <source>%1, with &quot;;&quot; between them</source>
        <translation>%1，以 “;” 分隔</translation>
    </message>
    <message>
        <source>Writes all signals into &quot;%1&quot; beside the configuration; takes time</source>
        <translation>把所有信号写入配置旁的 “%1”；需要时间</translation>
    </message>
    <message>
        <source>The last run has written no waves</source>
        <translation>上次运行没有写出波形</translation>
    </message>
    <message>
        <source>UART%1</source>
        <translation>UART%1</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Terminal of %1</source>
        <translation>%1 的终端</translation>
    </message>
    <message>
        <source>What the program says by other ways</source>
        <translation>程序以其他方式输出的内容</translation>
    </message>
    <message>
        <source>Bytes of the UART</source>
        <translation>UART 的字节</translation>
    </message>
    <message>
        <source>Lines by semihosting and of the simulator</source>
        <translation>来自半主机和仿真器的行</translation>
    </message>
    <message>
        <source>The program that simulates says what cannot be read: %1</source>
        <translation>仿真程序的输出无法读取：%1</translation>
    </message>
    <message>
        <source>There are more messages.</source>
        <translation>还有更多消息。</translation>
    </message>
    <message>
        <source>The simulation does not take what is typed.</source>
        <translation>仿真不接受输入的内容。</translation>
    </message>
    <message>
        <source>The waves are in &quot;%1&quot;. The program gtkwave shows them; the Debian package gtkwave has it.</source>
        <translation>波形在 “%1” 中。程序 gtkwave 可以显示波形；它在 Debian 软件包 gtkwave 中。</translation>
    </message>
</context>
<context>
    <name>Workbench::SimulationPages</name>
    <message>
        <source>Simulate %1</source>
        <translation>仿真 %1</translation>
    </message>
</context>
<context>
    <name>Workbench::SoftwareBrowser</name>
    <message>
        <source>The document</source>
        <translation>文档</translation>
    </message>
</context>
<context>
    <name>Workbench::SoftwareDocument</name>
    <message>
        <source>The document is too large to be laid out.</source>
        <translation>文档过大，无法排版。</translation>
    </message>
    <message>
        <source>The document is nested too deep to be laid out.</source>
        <translation>文档嵌套过深，无法排版。</translation>
    </message>
</context>
<context>
    <name>Workbench::SoftwareModel</name>
    <message>
        <source>no files</source>
        <translation>没有文件</translation>
    </message>
    <message>
        <source>%1 of %2 fresh</source>
        <translation>%1 个最新，共 %2 个</translation>
    </message>
    <message>
        <source>Of earlier exports</source>
        <translation>来自以前的导出</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>In the folder</source>
        <translation>文件夹中</translation>
    </message>
</context>
<context>
    <name>Workbench::SoftwarePage</name>
    <message>
        <source>&amp;Browse…</source>
        <translation>浏览(&amp;B)…</translation>
    </message>
    <message>
        <source>Chec&amp;k</source>
        <translation>检查(&amp;K)</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>另存为 PDF(&amp;D)…</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>导出(&amp;X)</translation>
    </message>
    <message>
        <source>Hand-off of %1</source>
        <translation>%1 的交付</translation>
    </message>
    <message>
        <source>Parts of the page</source>
        <translation>页面的各部分</translation>
    </message>
    <message>
        <source>File&amp;s</source>
        <translation>文件(&amp;S)</translation>
    </message>
    <message>
        <source>Pro&amp;gram</source>
        <translation>程序(&amp;G)</translation>
    </message>
    <message>
        <source>A program for the memory of the IP</source>
        <translation>用于 IP 存储器的程序</translation>
    </message>
    <message>
        <source>Formats and their files</source>
        <translation>格式及其文件</translation>
    </message>
    <message>
        <source>For&amp;mats to export:</source>
        <translation>要导出的格式(&amp;M)：</translation>
    </message>
    <message>
        <source>Contents of the file</source>
        <translation>文件的内容</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Compares the files in the folder with those shown; writes nothing</source>
        <translation>把文件夹中的文件与显示的内容比较；不写入</translation>
    </message>
    <message>
        <source>Puts the document of the selected format on pages of A4</source>
        <translation>把所选格式的文档排成 A4 页面</translation>
    </message>
    <message>
        <source>Writes the files of the chosen formats into the folder</source>
        <translation>把所选格式的文件写入文件夹</translation>
    </message>
    <message>
        <source>Folde&amp;r:</source>
        <translation>文件夹(&amp;R)：</translation>
    </message>
    <message>
        <source>There is no document %1 among the files.</source>
        <translation>文件中没有文档 %1。</translation>
    </message>
    <message>
        <source>The document has no heading &quot;%1&quot;.</source>
        <translation>文档没有标题 “%1”。</translation>
    </message>
    <message>
        <source>The IP is for the device %1 now. The files shown are made anew.</source>
        <translation>IP 现在用于器件 %1。显示的文件已重新生成。</translation>
    </message>
    <message>
        <source>The configuration has changed. The files shown are made anew.</source>
        <translation>配置已改变。显示的文件已重新生成。</translation>
    </message>
    <message>
        <source>For the device %1.</source>
        <translation>用于器件 %1。</translation>
    </message>
    <message>
        <source>Standard: %1.</source>
        <translation>标准：%1。</translation>
    </message>
    <message>
        <source>Checked by: %1.</source>
        <translation>检查工具：%1。</translation>
    </message>
    <message>
        <source>This configuration gives the format nothing to hand on.</source>
        <translation>此配置没有可用此格式交付的内容。</translation>
    </message>
    <message>
        <source>No format has this file any more.</source>
        <translation>已没有格式包含此文件。</translation>
    </message>
    <message>
        <source>%1 is no text: %2 bytes.</source>
        <translation>%1 不是文本：%2 字节。</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more bytes</source>
        <translation>
            <numerusform>… 以及另外 %n 字节</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. Made when it is needed; other files in it stay as they are</source>
        <translation>%1。需要时创建；其中的其他文件保持不变</translation>
    </message>
    <message>
        <source>A folder, or one beside the configuration</source>
        <translation>文件夹，可相对于配置所在位置</translation>
    </message>
    <message numerus="yes">
        <source>%n more in the tool tip.</source>
        <translation>
            <numerusform>另有 %n 条见工具提示。</numerusform>
        </translation>
    </message>
    <message>
        <source>All files are there as they are made now.</source>
        <translation>所有文件都与现在生成的相同。</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>stale</source>
        <translation>过时</translation>
    </message>
    <message>
        <source>edited</source>
        <translation>已编辑</translation>
    </message>
    <message>
        <source>left over</source>
        <translation>遗留</translation>
    </message>
    <message>
        <source>left over and edited</source>
        <translation>遗留且已编辑</translation>
    </message>
    <message>
        <source>Of %1 files: %2.</source>
        <translation>共 %1 个文件：%2。</translation>
    </message>
    <message>
        <source>All files were there already; nothing is written.</source>
        <translation>所有文件都已存在；没有写入。</translation>
    </message>
    <message numerus="yes">
        <source>%n files are written, %1 were there already.</source>
        <translation>
            <numerusform>写入了 %n 个文件，%1 个已存在。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files of earlier exports are removed.</source>
        <translation>
            <numerusform>删除了以前导出的 %n 个文件。</numerusform>
        </translation>
    </message>
    <message>
        <source>Folder for the files</source>
        <translation>存放文件的文件夹</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>另存为 PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF 文档 (*.pdf)</translation>
    </message>
    <message>
        <source>The document is in &quot;%1&quot;.</source>
        <translation>文档在 “%1” 中。</translation>
    </message>
    <message>
        <source>About the format</source>
        <translation>关于该格式</translation>
    </message>
</context>
<context>
    <name>Workbench::SoftwarePages</name>
    <message>
        <source>Hand-off of %1</source>
        <translation>%1 的交付</translation>
    </message>
</context>
<context>
    <name>Workbench::StartPage</name>
    <message>
        <source>Tarvo Workbench</source>
        <translation>Tarvo Workbench</translation>
    </message>
    <message>
        <source>Configure an IP for a device, generate it, and add the netlist to your design.</source>
        <translation>为器件配置一个 IP，生成它，并把网表加入您的设计。</translation>
    </message>
    <message>
        <source>New project…</source>
        <translation>新建项目…</translation>
    </message>
    <message>
        <source>Choose a folder, a name and a device.</source>
        <translation>选择文件夹、名称和器件。</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>A project (.tvproj), an IP configuration (.ipc) or a source file.</source>
        <translation>项目 (.tvproj)、IP 配置 (.ipc) 或源文件。</translation>
    </message>
    <message>
        <source>Open the example: %1…</source>
        <translation>打开示例：%1…</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>最近的项目</translation>
    </message>
    <message>
        <source>No device chosen</source>
        <translation>未选择器件</translation>
    </message>
    <message>
        <source>Change an IP of this project</source>
        <translation>修改此项目的 IP</translation>
    </message>
    <message>
        <source>Opens its dialog again; OK there generates it anew.</source>
        <translation>再次打开其对话框；在其中按“OK”重新生成。</translation>
    </message>
    <message>
        <source>Simulate %1</source>
        <translation>仿真 %1</translation>
    </message>
    <message>
        <source>Runs a program on it before there is hardware.</source>
        <translation>在有硬件之前就在其上运行程序。</translation>
    </message>
    <message>
        <source>Next: create an IP</source>
        <translation>下一步：创建 IP</translation>
    </message>
    <message>
        <source>Create another IP</source>
        <translation>再创建一个 IP</translation>
    </message>
    <message>
        <source>%1 %2…</source>
        <translation>%1 %2…</translation>
    </message>
    <message>
        <source>No IP in the catalogue supports this device. Click the device in the status bar to choose another one.</source>
        <translation>目录中没有 IP 支持此器件。单击状态栏中的器件可选择其他器件。</translation>
    </message>
    <message>
        <source>Its dialog opens. Configure the IP there and press OK: it is generated into a folder of this project, the netlist joins the sources, and the results are shown here.</source>
        <translation>其对话框将打开。在其中配置 IP 并按“OK”：IP 会生成到此项目的一个文件夹中，网表加入源文件，结果显示在此处。</translation>
    </message>
    <message>
        <source>Bring back a configuration</source>
        <translation>恢复配置</translation>
    </message>
    <message>
        <source>%1…</source>
        <translation>%1…</translation>
    </message>
    <message>
        <source>All kept configurations…</source>
        <translation>所有保留的配置…</translation>
    </message>
    <message>
        <source>New subsystem: %1 %2…</source>
        <translation>新建子系统：%1 %2…</translation>
    </message>
    <message>
        <source>Choose a device; then its dialog opens.</source>
        <translation>选择器件，然后打开其对话框。</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>入门</translation>
    </message>
    <message numerus="yes">
        <source>%n more are in the tree of the project.</source>
        <translation>
            <numerusform>项目树中还有 %n 个。</numerusform>
        </translation>
    </message>
    <message>
        <source>Go on with a draft</source>
        <translation>继续处理草稿</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>What was replaced, or was in a dialog that was left without OK.</source>
        <translation>被替换的配置，或未按“OK”离开的对话框中的内容。</translation>
    </message>
</context>
<context>
    <name>Workbench::StepsModel</name>
    <message>
        <source>What the file has</source>
        <translation>文件中的内容</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation>%1（当前）</translation>
    </message>
    <message>
        <source>%1 (undone)</source>
        <translation>%1（已撤销）</translation>
    </message>
</context>
<context>
    <name>Workbench::StepsPanel</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Back to What the File Has</source>
        <translation>回到文件中的内容(&amp;B)</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>步骤</translation>
    </message>
    <message>
        <source>Enter or a double click goes to a step</source>
        <translation>按 Enter 或双击转到某一步</translation>
    </message>
    <message>
        <source>The dialog failed when it was asked for its steps: %1.</source>
        <translation>向对话框询问其步骤时失败：%1。</translation>
    </message>
    <message>
        <source>The steps that the dialog tells cannot be used: %1.</source>
        <translation>对话框给出的步骤无法使用：%1。</translation>
    </message>
    <message>
        <source>The steps that the dialog tells cannot be used: %1 of %2 are said to count.</source>
        <translation>对话框给出的步骤无法使用：声称 %2 步中有 %1 步有效。</translation>
    </message>
    <message>
        <source>The dialog failed when it was to go to a step: %1.</source>
        <translation>转到某一步时对话框失败：%1。</translation>
    </message>
    <message>
        <source>The dialog cannot go there now.</source>
        <translation>对话框现在无法转到那里。</translation>
    </message>
</context>
<context>
    <name>Workbench::TabMenu</name>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Close the &amp;Others</source>
        <translation>关闭其他(&amp;O)</translation>
    </message>
    <message>
        <source>Show in the P&amp;roject</source>
        <translation>在项目中显示(&amp;R)</translation>
    </message>
    <message>
        <source>Open the &amp;Folder</source>
        <translation>打开文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Copy the &amp;Path</source>
        <translation>复制路径(&amp;P)</translation>
    </message>
</context>
</TS>

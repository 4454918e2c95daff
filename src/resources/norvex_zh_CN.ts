<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>About Norvex</source>
        <translation>关于 Norvex</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>AngleOfRotation</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>BackgroundColor</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Bad data.</source>
        <translation>文件中没有可读取的数据。</translation>
    </message>
    <message>
        <source>Fonts:</source>
        <translation>字体：</translation>
    </message>
    <message>
        <source>Colors used:</source>
        <translation>使用的颜色：</translation>
    </message>
    <message>
        <source>%1 What is shown was read before.</source>
        <translation>%1 显示的是之前读取的内容。</translation>
    </message>
    <message>
        <source>Bounding box:</source>
        <translation>边界框：</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>Chooses pictures and opens each in a window of its own</source>
        <translation>选择图片，并在各自的窗口中打开</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>清空列表</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>关闭查找栏</translation>
    </message>
    <message>
        <source>ColorSpaceName:</source>
        <translation>色彩空间：</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>命令及其按键</translation>
    </message>
    <message>
        <source>Compressed SVG image (SVGZ)</source>
        <translation>压缩的 SVG 图像 (SVGZ)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>复制路径</translation>
    </message>
    <message>
        <source>Copy Selected Text</source>
        <translation>复制所选文本</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>复制值</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>正在复制…</translation>
    </message>
    <message>
        <source>Copyright:</source>
        <translation>版权：</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>创建时间：</translation>
    </message>
    <message>
        <source>Creator:</source>
        <translation>创建程序：</translation>
    </message>
    <message>
        <source>D.M.S.</source>
        <translation>度、分、秒:12.3045 即 12° 30′ 45″</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>关闭提示</translation>
    </message>
    <message>
        <source>Down by %1 pt</source>
        <translation>向下 %1 pt</translation>
    </message>
    <message>
        <source>Drag twice to mark a rectangle. Drag with the Ctrl key held to take it to another program as a file.</source>
        <translation>拖动两次以标出矩形。按住 Ctrl 键拖动，可将其作为文件交给其他程序。</translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>正在绘制…</translation>
    </message>
    <message>
        <source>EPS, Illustrator, PDF and SVG pictures</source>
        <translation>EPS、Illustrator、PDF 和 SVG 图片</translation>
    </message>
    <message>
        <source>Encapsulated PostScript (EPS)</source>
        <translation>封装 PostScript (EPS)</translation>
    </message>
    <message>
        <source>Encapsulated PostScript with interchange preview (EPSI)</source>
        <translation>带交换预览的封装 PostScript (EPSI)</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>源文本的编码</translation>
    </message>
    <message>
        <source>Encoding:</source>
        <translation>编码：</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>此文档的文件</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>For:</source>
        <translation>用户：</translation>
    </message>
    <message>
        <source>GIF image</source>
        <translation>GIF 图像</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Hide extension</source>
        <translation>隐藏扩展名</translation>
    </message>
    <message>
        <source>High resolution:</source>
        <translation>高分辨率：</translation>
    </message>
    <message>
        <source>Higher by %1 pt</source>
        <translation>增高 %1 pt</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>检查器</translation>
    </message>
    <message>
        <source>JPEG image</source>
        <translation>JPEG 图像</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>首选项(&amp;E)…</translation>
    </message>
    <message>
        <source>Di&amp;m Outside of Selection</source>
        <translation>淡化选区以外(&amp;M)</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>&amp;Window fits picture</source>
        <translation>窗口适合图片(&amp;W)</translation>
    </message>
    <message>
        <source>No larger than the picture, and smaller with it.</source>
        <translation>窗口不大于图片，并随图片一起缩小。</translation>
    </message>
    <message>
        <source>Chec&amp;kerboard behind new pictures</source>
        <translation>在新图片背后显示棋盘格(&amp;K)</translation>
    </message>
    <message>
        <source>Shows where nothing is painted, instead of the background colour.</source>
        <translation>以棋盘格代替背景颜色，标出没有绘制内容的位置。</translation>
    </message>
    <message>
        <source>Di&amp;m what is outside of the selection</source>
        <translation>淡化选区以外的部分(&amp;M)</translation>
    </message>
    <message>
        <source>What is copied, saved or printed stands out.</source>
        <translation>突出显示将被复制、保存或打印的部分。</translation>
    </message>
    <message>
        <source>&amp;Unit of lengths:</source>
        <translation>长度单位(&amp;U)：</translation>
    </message>
    <message>
        <source>Of coordinates, of the size of a selection, and of typed numbers.</source>
        <translation>用于坐标、选区大小和键入的数值。</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>毫米</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>Picas</source>
        <translation>派卡</translation>
    </message>
    <message>
        <source>&amp;Reload changed files by itself</source>
        <translation>自动重新载入已更改的文件(&amp;R)</translation>
    </message>
    <message>
        <source>Otherwise a bar in the window asks.</source>
        <translation>关闭时由窗口中的提示条询问。</translation>
    </message>
    <message>
        <source>R&amp;emember files</source>
        <translation>记住文件(&amp;E)</translation>
    </message>
    <message>
        <source>Recent files, and how their pictures were shown. Switching it off forgets all.</source>
        <translation>最近使用的文件及其图片的显示方式。关闭后将全部清除。</translation>
    </message>
    <message>
        <source>C&amp;lear History</source>
        <translation>清除历史记录(&amp;L)</translation>
    </message>
    <message>
        <source>Forgets the recent files, and how their pictures were shown.</source>
        <translation>清除最近使用的文件及其图片的显示方式。</translation>
    </message>
    <message>
        <source>Colours:</source>
        <translation>颜色：</translation>
    </message>
    <message>
        <source>RGB for screens</source>
        <translation>RGB（屏幕）</translation>
    </message>
    <message>
        <source>Shades of grey</source>
        <translation>灰度</translation>
    </message>
    <message>
        <source>CMYK for print</source>
        <translation>CMYK（印刷）</translation>
    </message>
    <message>
        <source>&amp;Real Size on This Screen</source>
        <translation>此屏幕上的实际尺寸(&amp;S)</translation>
    </message>
    <message>
        <source>Size the selection</source>
        <translation>调整选区大小</translation>
    </message>
    <message>
        <source>Drag a square beside it</source>
        <translation>拖动其边缘的方块</translation>
    </message>
    <message>
        <source>Move the selection</source>
        <translation>移动选区</translation>
    </message>
    <message>
        <source>Drag its size</source>
        <translation>拖动其尺寸标签</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Left by %1 pt</source>
        <translation>向左 %1 pt</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>行号</translation>
    </message>
    <message>
        <source>Lower by %1 pt</source>
        <translation>降低 %1 pt</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>匹配项</translation>
    </message>
    <message>
        <source>Move Selection</source>
        <translation>移动选区</translation>
    </message>
    <message>
        <source>Narrower by %1 pt</source>
        <translation>变窄 %1 pt</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一个</translation>
    </message>
    <message>
        <source>No recent files</source>
        <translation>没有最近使用的文件</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>本页未找到</translation>
    </message>
    <message>
        <source>Not possible for this picture: %1</source>
        <translation>此图片无法如此处理：%1</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>未选择任何内容。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Only files on this computer can be opened.</source>
        <translation>只能打开这台计算机上的文件。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>打开最近使用的文件</translation>
    </message>
    <message>
        <source>Opening was stopped</source>
        <translation>已停止打开</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>正在打开…</translation>
    </message>
    <message>
        <source>Opens EPS, Illustrator, PDF and SVG pictures and hands any part of them on as vectors.</source>
        <translation>打开 EPS、Illustrator、PDF 和 SVG 图片，并将其任意部分以矢量形式交给其他程序。</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>OrderfrontColorWell</source>
        <translation>显示颜色面板</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>PDF 文档</translation>
    </message>
    <message>
        <source>PNG image</source>
        <translation>PNG 图像</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Pictures that you open are listed here.</source>
        <translation>您打开的图片会列在这里。</translation>
    </message>
    <message>
        <source>Please retry with other format.</source>
        <translation>请换一种格式重试。</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一个</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印…</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近使用</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>最近使用的文件</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新载入</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>从列表中移除</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Resize Selection</source>
        <translation>调整选区大小</translation>
    </message>
    <message>
        <source>Right by %1 pt</source>
        <translation>向右 %1 pt</translation>
    </message>
    <message>
        <source>RotateImageByMousedragg</source>
        <translation>拖动以旋转图片。按住 Shift 时每 15° 停顿，双击恢复为 0°。</translation>
    </message>
    <message>
        <source>SVG image</source>
        <translation>SVG 图像</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Save Selection</source>
        <translation>保存选区</translation>
    </message>
    <message>
        <source>Save To</source>
        <translation>保存到</translation>
    </message>
    <message>
        <source>SaveAs</source>
        <translation>另存为…</translation>
    </message>
    <message>
        <source>SaveTo</source>
        <translation>保存到…</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>横向滚动</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>上下滚动</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Selected from %1, %2 to %3, %4: %5 by %6 points.</source>
        <translation>已选择从 %1, %2 到 %3, %4：%5 × %6 点。</translation>
    </message>
    <message>
        <source>Selected range of image data is written or displayed.</source>
        <translation>将选区或可见部分写入文件。</translation>
    </message>
    <message>
        <source>SelectedRectangle</source>
        <translation>所选矩形的两角</translation>
    </message>
    <message>
        <source>Selection is determined by dragging the mouse twice.</source>
        <translation>拖动一次确定起点，再拖动一次拉出矩形。</translation>
    </message>
    <message>
        <source>SourceCode</source>
        <translation>文档的源文本</translation>
    </message>
    <message>
        <source>TIFF image</source>
        <translation>TIFF 图像</translation>
    </message>
    <message>
        <source>The picture is still being printed.</source>
        <translation>图片仍在打印。</translation>
    </message>
    <message>
        <source>A file is still being written.</source>
        <translation>仍在写入文件。</translation>
    </message>
    <message>
        <source>Close When Finished</source>
        <translation>完成后关闭</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>停止并关闭</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>保持打开</translation>
    </message>
    <message>
        <source>The writing was stopped</source>
        <translation>已停止写入</translation>
    </message>
    <message>
        <source>The file was deleted or moved. What is shown was read before.</source>
        <translation>文件已被删除或移动。显示的是之前读取的内容。</translation>
    </message>
    <message>
        <source>Preparing “%1” for printing…</source>
        <translation>正在准备打印“%1”…</translation>
    </message>
    <message>
        <source>“%1” exists already. Do you want to replace it?</source>
        <translation>“%1”已存在。要替换它吗？</translation>
    </message>
    <message>
        <source>The file has changed on disk.</source>
        <translation>磁盘上的文件已更改。</translation>
    </message>
    <message>
        <source>The picture cannot be shown.</source>
        <translation>无法显示此图片。</translation>
    </message>
    <message>
        <source>The picture cannot be written in this format</source>
        <translation>无法以此格式写入图片</translation>
    </message>
    <message>
        <source>The picture could not be copied. The clipboard holds what it held before.</source>
        <translation>无法复制图片。剪贴板中仍是之前的内容。</translation>
    </message>
    <message>
        <source>The range of the selection or visible rect are copied onto the paste board.</source>
        <translation>将选区或可见部分复制到剪贴板。</translation>
    </message>
    <message>
        <source>The range of the selection or visible rect are printed.</source>
        <translation>打印选区或可见部分。</translation>
    </message>
    <message>
        <source>The selection starts at %1, %2.</source>
        <translation>选区从 %1, %2 开始。</translation>
    </message>
    <message>
        <source>There is not enough memory for this</source>
        <translation>内存不足，无法完成此操作</translation>
    </message>
    <message>
        <source>This could not be done.</source>
        <translation>无法完成此操作。</translation>
    </message>
    <message>
        <source>This is not an EPS, Illustrator, PDF or SVG picture.</source>
        <translation>这不是 EPS、Illustrator、PDF 或 SVG 图片。</translation>
    </message>
    <message>
        <source>The file's name is not text in UTF-8. Please rename the file.</source>
        <translation>文件名不是 UTF-8 文本。请重命名该文件。</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>标题：</translation>
    </message>
    <message>
        <source>Touch Bar</source>
        <translation>Touch Bar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>Up by %1 pt</source>
        <translation>向上 %1 pt</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>ViewBox</source>
        <translation>图片的 viewBox 或边界，以图片自身的单位表示</translation>
    </message>
    <message>
        <source>What it holds will be lost.</source>
        <translation>其中的内容将会丢失。</translation>
    </message>
    <message>
        <source>Wider by %1 pt</source>
        <translation>变宽 %1 pt</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>正在写入…</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>or drop pictures here</source>
        <translation>或将图片拖放到这里</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>无法打开“%1”。</translation>
    </message>
    <message>
        <source>%1 files could not be opened.</source>
        <translation>无法打开 %1 个文件。</translation>
    </message>
    <message>
        <source>“%1” exists already.</source>
        <translation>“%1”已存在。</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全部(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>下(&amp;B)：</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>份数(&amp;C)：</translation>
    </message>
    <message>
        <source>&amp;Fit on one page</source>
        <translation>缩放到一页(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation>横向(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>打印(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>右(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Scaling:</source>
        <translation>缩放(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Horizontally</source>
        <translation>水平(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Vertically</source>
        <translation>垂直(&amp;V)</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一页</translation>
    </message>
    <message>
        <source>Fro&amp;m</source>
        <translation>从(&amp;M)</translation>
    </message>
    <message>
        <source>Hea&amp;der and footer</source>
        <translation>页眉和页脚(&amp;D)</translation>
    </message>
    <message>
        <source>Centred:</source>
        <translation>居中：</translation>
    </message>
    <message>
        <source>Centred horizontally</source>
        <translation>水平居中</translation>
    </message>
    <message>
        <source>Centred vertically</source>
        <translation>垂直居中</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最后一页</translation>
    </message>
    <message>
        <source>Lef&amp;t:</source>
        <translation>左(&amp;T)：</translation>
    </message>
    <message>
        <source>This printer is no longer there.</source>
        <translation>这台打印机已不存在。</translation>
    </message>
    <message>
        <source>Print Selected or Visible Pa&amp;rt…</source>
        <translation>打印所选或可见部分(&amp;T)…</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>正在查找打印机…</translation>
    </message>
    <message>
        <source>Makes the picture smaller until one page holds it</source>
        <translation>缩小图片，直到一页能容纳</translation>
    </message>
    <message>
        <source>Margins:</source>
        <translation>页边距：</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>方向：</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>打印机(&amp;R)：</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>Page Set&amp;up…</source>
        <translation>页面设置(&amp;U)…</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>页面设置</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>页码：</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>纸张(&amp;E)：</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Portra&amp;it</source>
        <translation>纵向(&amp;I)</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>页面预览</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>打印“%1”</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Printing “%1”: page %2 of %3…</source>
        <translation>正在打印“%1”：第 %2 页，共 %3 页…</translation>
    </message>
    <message>
        <source>Printing “%1”…</source>
        <translation>正在打印“%1”…</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>保存(&amp;V)…</translation>
    </message>
    <message>
        <source>Save as PDF file</source>
        <translation>保存为 PDF 文件</translation>
    </message>
    <message>
        <source>Save the pages as PDF</source>
        <translation>将页面保存为 PDF</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>T&amp;op:</source>
        <translation>上(&amp;O)：</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>不接受任务</translation>
    </message>
    <message>
        <source>The date above the picture and the file's location below it, on every page</source>
        <translation>每页图片上方显示日期，下方显示文件位置</translation>
    </message>
    <message>
        <source>The margins leave no room on the paper.</source>
        <translation>页边距过大，纸上没有剩余空间。</translation>
    </message>
    <message>
        <source>The pages become a PDF file.</source>
        <translation>页面将成为 PDF 文件。</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>没有打印机。</translation>
    </message>
    <message>
        <source>to</source>
        <translation>到</translation>
    </message>
    <message>
        <source>“%1” was not printed.</source>
        <translation>“%1”未打印。</translation>
    </message>
    <message>
        <source>With the mouse</source>
        <translation>鼠标操作</translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation>搜索命令和按键</translation>
    </message>
    <message>
        <source>Is the preview added the occasion where it writes out?</source>
        <translation>是否为不能绘制 EPS 的程序在文件中添加预览？</translation>
    </message>
    <message>
        <source>With preview</source>
        <translation>带预览</translation>
    </message>
    <message>
        <source>The new file would hold less than the picture does.</source>
        <translation>新文件包含的内容会少于图片。</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. The interpreter of PostScript is under the GNU Affero General Public License, version 3 or later.</source>
        <translation>本程序是自由软件，采用 GNU 通用公共许可证第 3 版或更高版本。PostScript 解释器采用 GNU Affero 通用公共许可证第 3 版或更高版本。</translation>
    </message>
    <message>
        <source>The drawing was stopped</source>
        <translation>已停止绘制</translation>
    </message>
    <message>
        <source>Norvex ended unexpectedly the last time.</source>
        <translation>Norvex 上次意外退出。</translation>
    </message>
    <message>
        <source>“%1” was open then, and may be the reason.</source>
        <translation>当时打开的是“%1”，它可能是原因。</translation>
    </message>
    <message>
        <source>Do Not Open</source>
        <translation>不打开</translation>
    </message>
    <message>
        <source>Open It Again</source>
        <translation>再次打开</translation>
    </message>
    <message>
        <source>%1 files were open then. “%2” was used last, and may be the reason.</source>
        <translation>当时打开了 %1 个文件。最后使用的是“%2”，它可能是原因。</translation>
    </message>
    <message>
        <source>Open the Others</source>
        <translation>打开其他文件</translation>
    </message>
    <message>
        <source>Open All Again</source>
        <translation>全部再次打开</translation>
    </message>
    <message>
        <source>Norvex Manual</source>
        <translation>Norvex 手册</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>清除历史记录</translation>
    </message>
    <message>
        <source>Remember Files</source>
        <translation>记住文件</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>搜索手册</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>手册页面</translation>
    </message>
    <message>
        <source>Place the first corner of a selection</source>
        <translation>确定选区的第一个角</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>拖动</translation>
    </message>
    <message>
        <source>Draw the selection from there</source>
        <translation>从那里拉出选区</translation>
    </message>
    <message>
        <source>Drag again</source>
        <translation>再次拖动</translation>
    </message>
    <message>
        <source>Take the selection to another program</source>
        <translation>将选区交给其他程序</translation>
    </message>
    <message>
        <source>Ctrl + Drag</source>
        <translation>Ctrl + 拖动</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>以指针为中心缩放</translation>
    </message>
    <message>
        <source>Ctrl + Wheel</source>
        <translation>Ctrl + 滚轮</translation>
    </message>
    <message>
        <source>Move the picture</source>
        <translation>移动图片</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>滚轮</translation>
    </message>
    <message>
        <source>Commands for the picture</source>
        <translation>图片的命令</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>右键</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>格式：</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>%1 What is shown is what it had drawn until then.</source>
        <translation>%1 显示的是在此之前已绘制的内容。</translation>
    </message>
    <message>
        <source>How the documents that it opens are confined:</source>
        <translation>打开的文档的隔离方式：</translation>
    </message>
    <message>
        <source>Read as:</source>
        <translation>读取方式：</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>The encoding in which comments and source text are read</source>
        <translation>读取注释和源文本时使用的编码</translation>
    </message>
    <message>
        <source>The source is not valid in %1.</source>
        <translation>源文本不是有效的 %1 文本。</translation>
    </message>
    <message>
        <source>A guess, as nothing says how the source is encoded. Read as %1:</source>
        <translation>没有信息说明源文本的编码，因此只是猜测。按 %1 读取：</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>说明：</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>What the library that reads the picture says</source>
        <translation>读取图片的库给出的信息</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>原样</translation>
    </message>
    <message>
        <source>None preview</source>
        <translation>无预览</translation>
    </message>
    <message>
        <source>WebP image</source>
        <translation>WebP 图像</translation>
    </message>
    <message>
        <source>Copied %1 pt</source>
        <translation>已复制 %1 pt</translation>
    </message>
    <message>
        <source>Other Folder…</source>
        <translation>其他文件夹…</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Folder for the exported file</source>
        <translation>存放导出文件的文件夹</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>位于 %1</translation>
    </message>
    <message>
        <source>EPS with TIFF preview</source>
        <translation>带 TIFF 预览的 EPS</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>此页</translation>
    </message>
    <message>
        <source>Part:</source>
        <translation>范围：</translation>
    </message>
    <message>
        <source> pixels an inch</source>
        <translation> 像素/英寸</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>宽度（像素）</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>高度（像素）</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>分辨率：</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>大小：</translation>
    </message>
    <message>
        <source>Fill with</source>
        <translation>填充</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>背景：</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>无损</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>质量：</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Making a preview…</source>
        <translation>正在生成预览…</translation>
    </message>
    <message>
        <source>File size: %1</source>
        <translation>文件大小：%1</translation>
    </message>
    <message>
        <source>Not possible</source>
        <translation>无法完成</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>导出(&amp;X)…</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>图片太大。</translation>
    </message>
    <message>
        <source>Exported “%1”</source>
        <translation>已导出“%1”</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>选区</translation>
    </message>
    <message>
        <source>Visible part</source>
        <translation>可见部分</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>整张图片</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>所有页面</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>第 %1 页</translation>
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
        <source>Page</source>
        <translation>页码</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>/ %1</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>前往(&amp;G)</translation>
    </message>
    <message>
        <source>Page &amp;Thumbnails</source>
        <translation>页面缩略图(&amp;T)</translation>
    </message>
    <message>
        <source>Page %1 has no area.</source>
        <translation>第 %1 页没有可显示的区域。</translation>
    </message>
    <message>
        <source>Where the pointer is in the picture. Click for another unit.</source>
        <translation>指针在图片中的位置。点击可切换单位。</translation>
    </message>
    <message>
        <source>Unit of lengths</source>
        <translation>长度单位</translation>
    </message>
    <message>
        <source>&amp;Next Page</source>
        <translation>下一页(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Page</source>
        <translation>上一页(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;First Page</source>
        <translation>第一页(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Last Page</source>
        <translation>最后一页(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Go to Page…</source>
        <translation>前往页面(&amp;G)…</translation>
    </message>
    <message>
        <source>&amp;Window Fits Picture</source>
        <translation>窗口适合图片(&amp;P)</translation>
    </message>
    <message>
        <source>Reload Changed Files b&amp;y Itself</source>
        <translation>自动重新载入已更改的文件(&amp;Y)</translation>
    </message>
    <message>
        <source>Select Rectangle</source>
        <translation>选择矩形</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>适合宽度(&amp;W)</translation>
    </message>
    <message>
        <source>Next Picture in F&amp;older</source>
        <translation>文件夹中的下一张图片(&amp;O)</translation>
    </message>
    <message>
        <source>Previous Pictu&amp;re in Folder</source>
        <translation>文件夹中的上一张图片(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo Selection</source>
        <translation>撤销选区更改(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo Selection</source>
        <translation>重做选区更改(&amp;R)</translation>
    </message>
    <message>
        <source>Select Rectan&amp;gle…</source>
        <translation>选择矩形(&amp;G)…</translation>
    </message>
    <message>
        <source>From the left:</source>
        <translation>距左边：</translation>
    </message>
    <message>
        <source>From below:</source>
        <translation>距下边：</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>宽度：</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高度：</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Still working: wait, or stop and show what there is.</source>
        <translation>仍在处理：请等待，或停止并显示已有的内容。</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>等待</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>重新检查</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>正在检查…</translation>
    </message>
    <message>
        <source>What the picture is for</source>
        <translation>图片的用途</translation>
    </message>
    <message>
        <source>For Any Use</source>
        <translation>任何用途</translation>
    </message>
    <message>
        <source>For Print</source>
        <translation>用于印刷</translation>
    </message>
    <message>
        <source>For a Journal</source>
        <translation>用于期刊</translation>
    </message>
    <message>
        <source>For the Web</source>
        <translation>用于网页</translation>
    </message>
    <message>
        <source>For an Archive</source>
        <translation>用于存档</translation>
    </message>
    <message>
        <source>From a File…</source>
        <translation>从文件…</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>未发现任何问题。</translation>
    </message>
    <message>
        <source>%1 more are not shown.</source>
        <translation>另有 %1 项未显示。</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>修复…</translation>
    </message>
    <message>
        <source>Repair All…</source>
        <translation>全部修复…</translation>
    </message>
    <message>
        <source>Writes a mended copy of the file</source>
        <translation>写出一份修复后的副本</translation>
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
        <source>1 error</source>
        <translation>1 个错误</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 个错误</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 个警告</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 个警告</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>1 个提示</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>%1 个提示</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>at %1, %2 pt</source>
        <translation>位于 %1, %2 pt</translation>
    </message>
    <message>
        <source>The check was stopped.</source>
        <translation>检查已停止。</translation>
    </message>
    <message>
        <source>The file has changed while it was checked.</source>
        <translation>检查期间文件已更改。</translation>
    </message>
    <message>
        <source>There is no file to check.</source>
        <translation>没有可检查的文件。</translation>
    </message>
    <message>
        <source>Not everything could be checked. %1</source>
        <translation>未能检查全部内容。%1</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Profiles (*.toml)</source>
        <translation>配置 (*.toml)</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修复</translation>
    </message>
    <message>
        <source>A mended copy of the file is written. What it draws stays the same.</source>
        <translation>将写出一份修复后的副本，其绘制内容保持不变。</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>预览：</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>保持原样</translation>
    </message>
    <message>
        <source>Made anew</source>
        <translation>重新生成</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>去除</translation>
    </message>
    <message>
        <source>Repairing…</source>
        <translation>正在修复…</translation>
    </message>
    <message>
        <source>Nothing had to be changed.</source>
        <translation>无需任何更改。</translation>
    </message>
    <message>
        <source>This stays as it is:</source>
        <translation>以下保持原样：</translation>
    </message>
    <message>
        <source>“%1” is written.</source>
        <translation>已写入“%1”。</translation>
    </message>
    <message>
        <source>Open It</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Inspector in t&amp;he Window</source>
        <translation>检查器置于窗口内(&amp;H)</translation>
    </message>
    <message>
        <source>Go to Inspector or Pi&amp;cture</source>
        <translation>切换检查器与图片(&amp;C)</translation>
    </message>
    <message>
        <source>The program lies in a wrapping of another system</source>
        <translation>程序被其他系统的格式所包装。</translation>
    </message>
    <message>
        <source>A section of the binary header lies outside the file</source>
        <translation>二进制文件头中的某个区段位于文件之外。</translation>
    </message>
    <message>
        <source>Sections of the binary header overlap</source>
        <translation>二进制文件头中的区段互相重叠。</translation>
    </message>
    <message>
        <source>Bytes before the first line</source>
        <translation>首行之前有多余字节。</translation>
    </message>
    <message>
        <source>Bytes behind the program's end</source>
        <translation>程序结尾之后有多余字节。</translation>
    </message>
    <message>
        <source>The file is cut off</source>
        <translation>文件不完整，被截断。</translation>
    </message>
    <message>
        <source>The first line is not that of a PostScript file</source>
        <translation>首行不是 PostScript 文件的首行。</translation>
    </message>
    <message>
        <source>The first line does not declare EPSF</source>
        <translation>首行未声明 EPSF。</translation>
    </message>
    <message>
        <source>The first line declares a version that does not exist</source>
        <translation>首行声明了不存在的版本。</translation>
    </message>
    <message>
        <source>There is no %%BoundingBox</source>
        <translation>没有 %%BoundingBox。</translation>
    </message>
    <message>
        <source>%%BoundingBox: (atend) without a box at the end</source>
        <translation>%%BoundingBox: (atend)，但结尾处没有边界框。</translation>
    </message>
    <message>
        <source>%%BoundingBox does not hold four numbers</source>
        <translation>%%BoundingBox 中没有四个数值。</translation>
    </message>
    <message>
        <source>The bounding box is empty</source>
        <translation>边界框为空。</translation>
    </message>
    <message>
        <source>%%BoundingBox holds numbers that are not whole</source>
        <translation>%%BoundingBox 含有非整数数值。</translation>
    </message>
    <message>
        <source>%%BoundingBox does not enclose %%HiResBoundingBox, or is far larger</source>
        <translation>%%BoundingBox 未包住 %%HiResBoundingBox，或远大于它。</translation>
    </message>
    <message>
        <source>Ink lies outside the bounding box</source>
        <translation>有图形位于边界框之外。</translation>
    </message>
    <message>
        <source>The bounding box is larger than the ink</source>
        <translation>边界框大于实际图形。</translation>
    </message>
    <message>
        <source>The program draws nothing that is not white</source>
        <translation>程序只绘制白色。</translation>
    </message>
    <message>
        <source>The program stops with a PostScript error</source>
        <translation>程序因 PostScript 错误而中止。</translation>
    </message>
    <message>
        <source>The interpreter had something to remark</source>
        <translation>解释器给出了提示。</translation>
    </message>
    <message>
        <source>showpage is missing</source>
        <translation>缺少 showpage。</translation>
    </message>
    <message>
        <source>An operator that has no place in an EPS file</source>
        <translation>含有不应出现在 EPS 文件中的操作符。</translation>
    </message>
    <message>
        <source>Operators of a higher language level than the comments declare</source>
        <translation>操作符的语言级别高于注释所声明的级别。</translation>
    </message>
    <message>
        <source>%%EndComments is missing</source>
        <translation>缺少 %%EndComments。</translation>
    </message>
    <message>
        <source>Comments stand in the wrong order</source>
        <translation>注释的顺序有误。</translation>
    </message>
    <message>
        <source>A section begins and does not end, or the other way round</source>
        <translation>某个区段有始无终，或有终无始。</translation>
    </message>
    <message>
        <source>Lines of more than 255 bytes</source>
        <translation>有超过 255 字节的行。</translation>
    </message>
    <message>
        <source>Lines end in different ways</source>
        <translation>行尾格式不一致。</translation>
    </message>
    <message>
        <source>Other bytes than %%DocumentData declares</source>
        <translation>字节内容与 %%DocumentData 的声明不符。</translation>
    </message>
    <message>
        <source>The file needs fonts that it does not bring</source>
        <translation>文件需要其自身未包含的字体。</translation>
    </message>
    <message>
        <source>There is no preview</source>
        <translation>没有预览。</translation>
    </message>
    <message>
        <source>The preview cannot be read</source>
        <translation>无法读取预览。</translation>
    </message>
    <message>
        <source>The preview shows another picture than the program draws</source>
        <translation>预览与程序绘制的图片不同。</translation>
    </message>
    <message>
        <source>The preview has another shape than the bounding box</source>
        <translation>预览的形状与边界框不同。</translation>
    </message>
    <message>
        <source>A font is neither in the file nor on this machine</source>
        <translation>某字体既不在文件中，也不在本机上。</translation>
    </message>
    <message>
        <source>A font is not embedded</source>
        <translation>某字体未嵌入。</translation>
    </message>
    <message>
        <source>A font is embedded as a whole</source>
        <translation>某字体被完整嵌入。</translation>
    </message>
    <message>
        <source>A Type 3 font</source>
        <translation>含有 Type 3 字体。</translation>
    </message>
    <message>
        <source>Text smaller than the profile allows</source>
        <translation>文字小于配置所允许的大小。</translation>
    </message>
    <message>
        <source>A colour space that the profile does not name</source>
        <translation>含有配置未列出的色彩空间。</translation>
    </message>
    <message>
        <source>RGB colours where the profile wants none</source>
        <translation>含有配置不允许的 RGB 颜色。</translation>
    </message>
    <message>
        <source>RGB in a CMYK picture</source>
        <translation>CMYK 图片中含有 RGB。</translation>
    </message>
    <message>
        <source>Spot inks</source>
        <translation>含有专色。</translation>
    </message>
    <message>
        <source>More ink in one place than the profile allows</source>
        <translation>某处的总墨量超过配置所允许的量。</translation>
    </message>
    <message>
        <source>White that overprints vanishes</source>
        <translation>设为叠印的白色会消失。</translation>
    </message>
    <message>
        <source>Black text that does not overprint</source>
        <translation>黑色文字未叠印。</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>含有透明效果。</translation>
    </message>
    <message>
        <source>Lines thinner than the profile allows</source>
        <translation>线条细于配置所允许的粗细。</translation>
    </message>
    <message>
        <source>An image has fewer pixels an inch than the profile asks for</source>
        <translation>某图像的分辨率低于配置要求。</translation>
    </message>
    <message>
        <source>Something is drawn outside the page's box</source>
        <translation>有内容画在页面框之外。</translation>
    </message>
    <message>
        <source>The picture fits no column of the profile</source>
        <translation>图片宽度不符合配置中的任何栏宽。</translation>
    </message>
    <message>
        <source>A part of the page was not looked at</source>
        <translation>页面有一部分未检查。</translation>
    </message>
    <message>
        <source>The file is damaged</source>
        <translation>文件已损坏。</translation>
    </message>
    <message>
        <source>The document is encrypted</source>
        <translation>文档已加密。</translation>
    </message>
    <message>
        <source>Its permissions forbid printing or changing it</source>
        <translation>其权限禁止打印或修改。</translation>
    </message>
    <message>
        <source>It claims to keep a standard</source>
        <translation>声明遵循某项标准。</translation>
    </message>
    <message>
        <source>It claims PDF/X or PDF/A and has no output intent</source>
        <translation>声明为 PDF/X 或 PDF/A，但没有输出意图。</translation>
    </message>
    <message>
        <source>It needs other files, which are never loaded</source>
        <translation>需要其他文件，而这些文件从不加载。</translation>
    </message>
    <message>
        <source>Filters become images in print</source>
        <translation>滤镜在打印时会变成图像。</translation>
    </message>
    <message>
        <source>The size has no unit, or there is none</source>
        <translation>尺寸没有单位，或没有尺寸。</translation>
    </message>
    <message>
        <source>Scripts and animations are not run</source>
        <translation>脚本和动画不会运行。</translation>
    </message>
    <message>
        <source>repair takes the program out</source>
        <translation>修复会取出程序。</translation>
    </message>
    <message>
        <source>repair writes the header anew</source>
        <translation>修复会重写文件头。</translation>
    </message>
    <message>
        <source>repair leaves them out</source>
        <translation>修复会将其去除。</translation>
    </message>
    <message>
        <source>fetch the file again</source>
        <translation>请重新获取该文件。</translation>
    </message>
    <message>
        <source>repair writes it</source>
        <translation>修复会写入。</translation>
    </message>
    <message>
        <source>repair writes the versions 3.0</source>
        <translation>修复会写入版本 3.0。</translation>
    </message>
    <message>
        <source>repair computes it</source>
        <translation>修复会重新计算。</translation>
    </message>
    <message>
        <source>repair writes whole numbers</source>
        <translation>修复会写入整数。</translation>
    </message>
    <message>
        <source>repair computes both</source>
        <translation>修复会重新计算两者。</translation>
    </message>
    <message>
        <source>write the file again from the program that made it</source>
        <translation>请用生成该文件的程序重新写出。</translation>
    </message>
    <message>
        <source>repair puts it in</source>
        <translation>修复会将其补上。</translation>
    </message>
    <message>
        <source>write the file again as EPS</source>
        <translation>请重新以 EPS 格式写出。</translation>
    </message>
    <message>
        <source>add %%LanguageLevel to the header</source>
        <translation>请在文件头中加入 %%LanguageLevel。</translation>
    </message>
    <message>
        <source>repair puts those of the header in order</source>
        <translation>修复会整理文件头中的注释。</translation>
    </message>
    <message>
        <source>most readers take them</source>
        <translation>多数读取程序可以接受。</translation>
    </message>
    <message>
        <source>declare %%DocumentData: Binary</source>
        <translation>请声明 %%DocumentData: Binary。</translation>
    </message>
    <message>
        <source>embed the fonts, or draw text as outlines</source>
        <translation>请嵌入字体，或将文字转为轮廓。</translation>
    </message>
    <message>
        <source>repair makes one</source>
        <translation>修复会生成预览。</translation>
    </message>
    <message>
        <source>embed the font</source>
        <translation>请嵌入该字体。</translation>
    </message>
    <message>
        <source>use a font with outlines</source>
        <translation>请使用轮廓字体。</translation>
    </message>
    <message>
        <source>set the text larger</source>
        <translation>请增大文字。</translation>
    </message>
    <message>
        <source>convert the colours</source>
        <translation>请转换颜色。</translation>
    </message>
    <message>
        <source>choose colours with less ink</source>
        <translation>请选用墨量更少的颜色。</translation>
    </message>
    <message>
        <source>let it knock out</source>
        <translation>请改为挖空。</translation>
    </message>
    <message>
        <source>let black text overprint</source>
        <translation>请让黑色文字叠印。</translation>
    </message>
    <message>
        <source>flatten it where the printer asks for it</source>
        <translation>若印刷厂要求，请拼合透明。</translation>
    </message>
    <message>
        <source>draw them thicker</source>
        <translation>请加粗线条。</translation>
    </message>
    <message>
        <source>place it smaller, or with more pixels</source>
        <translation>请缩小放置，或提供更多像素。</translation>
    </message>
    <message>
        <source>enlarge the box, or leave it out</source>
        <translation>请扩大页面框，或将其去除。</translation>
    </message>
    <message>
        <source>draw it for the column's width</source>
        <translation>请按栏宽绘制。</translation>
    </message>
    <message>
        <source>convert it to PDF, and look whether anything is missing</source>
        <translation>请转换为 PDF，并查看是否有缺失。</translation>
    </message>
    <message>
        <source>write it without encryption</source>
        <translation>请以不加密方式写出。</translation>
    </message>
    <message>
        <source>write it without restrictions</source>
        <translation>请以无限制方式写出。</translation>
    </message>
    <message>
        <source>add the output intent</source>
        <translation>请添加输出意图。</translation>
    </message>
    <message>
        <source>embed them</source>
        <translation>请将其嵌入。</translation>
    </message>
    <message>
        <source>draw the effect, or accept an image</source>
        <translation>请直接绘制该效果，或接受其变为图像。</translation>
    </message>
    <message>
        <source>give width and height in mm, pt or in</source>
        <translation>请以 mm、pt 或 in 给出宽和高。</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>密码不正确。</translation>
    </message>
    <message>
        <source>The document is protected by a password.</source>
        <translation>此文档受密码保护。</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>La&amp;yers</source>
        <translation>图层(&amp;Y)</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>图层 %1</translation>
    </message>
    <message>
        <source>The document locks this layer.</source>
        <translation>文档锁定了此图层。</translation>
    </message>
    <message>
        <source>Find in P&amp;icture…</source>
        <translation>在图片中查找(&amp;I)…</translation>
    </message>
    <message>
        <source>The text of the picture cannot be read.</source>
        <translation>无法读取图片中的文本。</translation>
    </message>
    <message>
        <source>Select &amp;Text</source>
        <translation>选择文本(&amp;T)</translation>
    </message>
    <message>
        <source>Copy Te&amp;xt</source>
        <translation>复制文本(&amp;X)</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>已复制文本</translation>
    </message>
    <message>
        <source>Links of this kind are not followed.</source>
        <translation>不会打开此类链接。</translation>
    </message>
    <message>
        <source>No program here opens this address.</source>
        <translation>此处没有程序可以打开此地址。</translation>
    </message>
    <message>
        <source>The picture links to this address. Open it?</source>
        <translation>图片链接到此地址。要打开吗？</translation>
    </message>
    <message>
        <source>Open Address</source>
        <translation>打开地址</translation>
    </message>
    <message>
        <source>Inks</source>
        <translation>油墨</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>油墨</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>覆盖率</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>此处</translation>
    </message>
    <message>
        <source>Only This Ink</source>
        <translation>仅此油墨</translation>
    </message>
    <message>
        <source>All Inks</source>
        <translation>全部油墨</translation>
    </message>
    <message>
        <source>Inks as grey plates</source>
        <translation>以灰度印版显示油墨</translation>
    </message>
    <message>
        <source>The picture is separated into plates: %1</source>
        <translation>图片已分为印版：%1</translation>
    </message>
    <message>
        <source>Windows metafile, %1</source>
        <translation>Windows 图元文件，%1</translation>
    </message>
    <message>
        <source>Keep text as text, with its fonts</source>
        <translation>文本保持为文本并附带字体</translation>
    </message>
    <message>
        <source>Show the inks in the picture</source>
        <translation>在图片中显示油墨</translation>
    </message>
    <message>
        <source>Simulate overprinting</source>
        <translation>模拟叠印</translation>
    </message>
    <message>
        <source>Mark ink above</source>
        <translation>标出总墨量高于</translation>
    </message>
    <message>
        <source>Limit of all inks together</source>
        <translation>全部油墨之和的上限</translation>
    </message>
    <message>
        <source>The page as its inks print it</source>
        <translation>由油墨印成的页面</translation>
    </message>
    <message>
        <source>Most ink in one place: %1</source>
        <translation>单处最大墨量：%1</translation>
    </message>
    <message>
        <source>All inks under the pointer: %1</source>
        <translation>指针下的总墨量：%1</translation>
    </message>
    <message>
        <source>The page is being separated into its inks…</source>
        <translation>正在将页面分解为各种油墨…</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>没有图片。</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>The shown page (%1)</source>
        <translation>显示的页面（%1）</translation>
    </message>
    <message>
        <source>All %1 pages</source>
        <translation>全部 %1 页</translation>
    </message>
    <message>
        <source>Some pages</source>
        <translation>部分页面</translation>
    </message>
    <message>
        <source>From page</source>
        <translation>起始页</translation>
    </message>
    <message>
        <source>From page:</source>
        <translation>起始页：</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>页码(&amp;G)：</translation>
    </message>
    <message>
        <source>Sheets:</source>
        <translation>纸张范围：</translation>
    </message>
    <message>
        <source>New keys</source>
        <translation>新快捷键</translation>
    </message>
    <message>
        <source>&amp;Remove Keys</source>
        <translation>移除快捷键(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Default Keys</source>
        <translation>默认快捷键(&amp;D)</translation>
    </message>
    <message>
        <source>All De&amp;faults</source>
        <translation>全部恢复默认(&amp;F)</translation>
    </message>
    <message>
        <source>Keys of “%1”:</source>
        <translation>“%1”的快捷键：</translation>
    </message>
    <message>
        <source>Choose a command, and then press the keys that it shall have.</source>
        <translation>请选择一个命令，然后按下要分配给它的键。</translation>
    </message>
    <message>
        <source>“%1” is for typing and for moving the picture. Take it together with Ctrl or Alt, or take a function key.</source>
        <translation>“%1”用于输入和移动图片。请与 Ctrl 或 Alt 组合，或使用功能键。</translation>
    </message>
    <message>
        <source>“%1” cannot be written, and nothing was changed.</source>
        <translation>无法写入“%1”，未作任何更改。</translation>
    </message>
    <message>
        <source>“%1” belongs to “%2” already, and nothing was changed.</source>
        <translation>“%1”已属于“%2”，未作任何更改。</translation>
    </message>
    <message>
        <source>“%1” opens the menu “%2”, and nothing was changed.</source>
        <translation>“%1”会打开菜单“%2”，未作任何更改。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>品红</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Facts about the picture</source>
        <translation>图片信息</translation>
    </message>
    <message>
        <source>&amp;About Norvex</source>
        <translation>关于 Norvex(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>实际大小(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Deselect</source>
        <translation>取消选择(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>查找(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>适合窗口(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>重新载入(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Angle of rotation</source>
        <translation>旋转角度</translation>
    </message>
    <message>
        <source>Angle of rotation in degrees, minutes and seconds</source>
        <translation>旋转角度（度、分、秒）</translation>
    </message>
    <message>
        <source>AngleOfRotation</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Background colour</source>
        <translation>背景颜色</translation>
    </message>
    <message>
        <source>BackgroundColor</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Bounds</source>
        <translation>边界</translation>
    </message>
    <message>
        <source>ColorSpaceName:</source>
        <translation>色彩空间：</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copyright:</source>
        <translation>版权：</translation>
    </message>
    <message>
        <source>CreationDate:</source>
        <translation>创建时间：</translation>
    </message>
    <message>
        <source>Creator:</source>
        <translation>创建程序：</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>未选择任何内容。</translation>
    </message>
    <message>
        <source>Encoding:</source>
        <translation>编码：</translation>
    </message>
    <message>
        <source>End of the selection</source>
        <translation>选区终点</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>全屏(&amp;U)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>For:</source>
        <translation>用户：</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>检查器</translation>
    </message>
    <message>
        <source>Kind of preview</source>
        <translation>预览类型</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Picture rectangle</source>
        <translation>图片矩形</translation>
    </message>
    <message>
        <source>Picture to be written</source>
        <translation>要写入的图片</translation>
    </message>
    <message>
        <source>Picture with zoom and scroll bars</source>
        <translation>带缩放和滚动条的图片</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Reset Rotatio&amp;n</source>
        <translation>重置旋转(&amp;N)</translation>
    </message>
    <message>
        <source>Rotate &amp;Left</source>
        <translation>向左旋转(&amp;L)</translation>
    </message>
    <message>
        <source>Rotate &amp;Right</source>
        <translation>向右旋转(&amp;R)</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>SaveTo</source>
        <translation>保存到</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>源文本</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>源文本</translation>
    </message>
    <message>
        <source>Start of the selection</source>
        <translation>选区起点</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>标题：</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Copy Whole Picture</source>
        <translation>复制整张图片(&amp;C)</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>格式：</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>查找下一个(&amp;N)</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>查找上一个(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Touch Bar</source>
        <translation>Touch Bar(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>键盘快捷键(&amp;K)</translation>
    </message>
    <message>
        <source>What was noticed</source>
        <translation>注意到的问题</translation>
    </message>
    <message>
        <source>BoundingBox:</source>
        <translation>BoundingBox:</translation>
    </message>
    <message>
        <source>HiResBoundingBox:</source>
        <translation>HiResBoundingBox:</translation>
    </message>
    <message>
        <source>Fonts:</source>
        <translation>字体：</translation>
    </message>
    <message>
        <source>Colors used:</source>
        <translation>使用的颜色：</translation>
    </message>
    <message>
        <source>Encoding of the source</source>
        <translation>源文本的编码</translation>
    </message>
    <message>
        <source>About the encoding</source>
        <translation>关于编码</translation>
    </message>
    <message>
        <source>What the source seems to say</source>
        <translation>从源文本推测的信息</translation>
    </message>
</context>
<context>
    <name>SKTZoomingScrollView</name>
    <message>
        <source>10%</source>
        <translation>10%</translation>
    </message>
    <message>
        <source>25%</source>
        <translation>25%</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50%</translation>
    </message>
    <message>
        <source>75%</source>
        <translation>75%</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>125%</source>
        <translation>125%</translation>
    </message>
    <message>
        <source>150%</source>
        <translation>150%</translation>
    </message>
    <message>
        <source>200%</source>
        <translation>200%</translation>
    </message>
    <message>
        <source>400%</source>
        <translation>400%</translation>
    </message>
    <message>
        <source>800%</source>
        <translation>800%</translation>
    </message>
    <message>
        <source>1600%</source>
        <translation>1600%</translation>
    </message>
</context>
<context>
    <name>Sentences</name>
    <message>
        <source>the file is empty</source>
        <translation>文件是空的。</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>文件大于 %1 MiB。</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>这是一个文件夹。</translation>
    </message>
    <message>
        <source>it is a pipe, not an ordinary file</source>
        <translation>这是管道，不是普通文件。</translation>
    </message>
    <message>
        <source>it is a socket, not an ordinary file</source>
        <translation>这是套接字，不是普通文件。</translation>
    </message>
    <message>
        <source>it is a device, not an ordinary file</source>
        <translation>这是设备，不是普通文件。</translation>
    </message>
    <message>
        <source>it is being changed by another program</source>
        <translation>另一个程序正在更改此文件。</translation>
    </message>
    <message>
        <source>only local files can be opened</source>
        <translation>只能打开本机上的文件。</translation>
    </message>
    <message>
        <source>this type of document cannot be shown</source>
        <translation>无法显示此类文档。</translation>
    </message>
    <message>
        <source>this is not an EPS, Illustrator, PDF or SVG picture</source>
        <translation>这不是 EPS、Illustrator、PDF 或 SVG 图片。</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript</source>
        <translation>这不是封装 PostScript。</translation>
    </message>
    <message>
        <source>the PostScript header states no usable bounding box</source>
        <translation>PostScript 文件头没有可用的边界框。</translation>
    </message>
    <message>
        <source>the PostScript has no usable bounding box</source>
        <translation>此 PostScript 没有可用的边界框。</translation>
    </message>
    <message>
        <source>the file holds no PostScript</source>
        <translation>文件中没有 PostScript。</translation>
    </message>
    <message>
        <source>the picture has no area to be drawn</source>
        <translation>图片没有可绘制的面积。</translation>
    </message>
    <message>
        <source>the SVG document has no area</source>
        <translation>SVG 文档没有面积。</translation>
    </message>
    <message>
        <source>the picture is empty: its width or height is zero</source>
        <translation>图片为空：宽度或高度为零。</translation>
    </message>
    <message>
        <source>the file is cut off: %1 of the %2 bytes of %3 are missing</source>
        <translation>文件不完整：%2 字节中缺少 %1 字节（%3）。</translation>
    </message>
    <message>
        <source>the file seems cut off: its PostScript stops before its end</source>
        <translation>文件似乎不完整：其中的 PostScript 没有结尾。</translation>
    </message>
    <message>
        <source>the file is damaged; it was repaired as far as possible</source>
        <translation>文件已损坏；已尽可能修复。</translation>
    </message>
    <message>
        <source>the file is damaged; nothing of %1 can be read</source>
        <translation>文件已损坏，没有可读取的内容（%1）。</translation>
    </message>
    <message>
        <source>the file is damaged; nothing of page %1 can be read</source>
        <translation>文件已损坏；第 %1 页的任何内容都无法读取。</translation>
    </message>
    <message>
        <source>the document is damaged and cannot be read as PDF</source>
        <translation>文档已损坏，无法作为 PDF 读取。</translation>
    </message>
    <message>
        <source>the document is not a readable PDF</source>
        <translation>此文档不是可读取的 PDF。</translation>
    </message>
    <message>
        <source>the document is protected with a password</source>
        <translation>此文档受密码保护。</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>密码不正确。</translation>
    </message>
    <message>
        <source>the document uses an encryption that is not supported</source>
        <translation>此文档使用了不受支持的加密方式。</translation>
    </message>
    <message>
        <source>the document has no pages</source>
        <translation>此文档没有页面。</translation>
    </message>
    <message>
        <source>the document has more than %1 pages</source>
        <translation>此文档超过 %1 页。</translation>
    </message>
    <message>
        <source>there is no page %1; the document has %2</source>
        <translation>没有第 %1 页；文档共 %2 页。</translation>
    </message>
    <message>
        <source>there is no page %1, the document has %2</source>
        <translation>没有第 %1 页；文档共 %2 页。</translation>
    </message>
    <message>
        <source>page %1 is too far behind</source>
        <translation>第 %1 页的位置过于靠后。</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>第 %1 页没有面积。</translation>
    </message>
    <message>
        <source>page %1 cannot be read</source>
        <translation>无法读取第 %1 页。</translation>
    </message>
    <message>
        <source>this Illustrator file was saved without PDF content, so it shows a notice instead of the artwork</source>
        <translation>此 Illustrator 文件保存时未包含 PDF 内容，因此显示的是提示而不是图稿。</translation>
    </message>
    <message>
        <source>the document is protected by encryption, and what is made of it is not</source>
        <translation>此文档受加密保护，由它生成的内容则不受保护。</translation>
    </message>
    <message>
        <source>scripts of the document were left out</source>
        <translation>已略去文档中的脚本。</translation>
    </message>
    <message>
        <source>the PostScript program stops with an error</source>
        <translation>PostScript 程序因错误而中止。</translation>
    </message>
    <message>
        <source>the PostScript program tries to use a file, which no picture may</source>
        <translation>PostScript 程序试图使用文件，而图片不允许这样做。</translation>
    </message>
    <message>
        <source>the PostScript draws no page</source>
        <translation>此 PostScript 没有绘制任何页面。</translation>
    </message>
    <message>
        <source>the PostScript did not end within %1 seconds</source>
        <translation>PostScript 未能在 %1 秒内结束。</translation>
    </message>
    <message>
        <source>the PostScript needs more memory than it was granted</source>
        <translation>此 PostScript 需要的内存超出限额。</translation>
    </message>
    <message>
        <source>the PostScript used up the time or memory that it was granted</source>
        <translation>此 PostScript 用完了允许的时间或内存。</translation>
    </message>
    <message>
        <source>what follows the picture in the file was left out</source>
        <translation>已略去文件中图片之后的内容。</translation>
    </message>
    <message>
        <source>there is no interpreter of PostScript</source>
        <translation>没有 PostScript 解释器。</translation>
    </message>
    <message>
        <source>the interpreter of PostScript has ended</source>
        <translation>PostScript 解释器已退出。</translation>
    </message>
    <message>
        <source>the interpreter of PostScript cannot be reached</source>
        <translation>无法连接 PostScript 解释器。</translation>
    </message>
    <message>
        <source>Ghostscript (gs) is not installed</source>
        <translation>未安装 Ghostscript (gs)。</translation>
    </message>
    <message>
        <source>Ghostscript failed on the PostScript</source>
        <translation>Ghostscript 无法处理此 PostScript。</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>文档是空的。</translation>
    </message>
    <message>
        <source>the document is not XML</source>
        <translation>文档不是 XML。</translation>
    </message>
    <message>
        <source>the document is XML but not SVG</source>
        <translation>文档是 XML，但不是 SVG。</translation>
    </message>
    <message>
        <source>the document is not well-formed XML</source>
        <translation>文档不是格式正确的 XML。</translation>
    </message>
    <message>
        <source>the compressed data is damaged</source>
        <translation>压缩数据已损坏。</translation>
    </message>
    <message>
        <source>the compressed data is cut off</source>
        <translation>压缩数据不完整，被截断。</translation>
    </message>
    <message>
        <source>the compressed data grows to more than %1 times its size</source>
        <translation>压缩数据解压后超过原大小的 %1 倍。</translation>
    </message>
    <message>
        <source>the compressed data holds more than %1 MiB</source>
        <translation>压缩数据的内容超过 %1 MiB。</translation>
    </message>
    <message>
        <source>the document has more than %1 elements</source>
        <translation>文档的元素超过 %1 个。</translation>
    </message>
    <message>
        <source>the elements of the document nest more than %1 deep</source>
        <translation>文档元素的嵌套超过 %1 层。</translation>
    </message>
    <message>
        <source>the references of the document nest more than %1 deep</source>
        <translation>文档引用的嵌套超过 %1 层。</translation>
    </message>
    <message>
        <source>the glyphs of the document's fonts nest more than %1 deep</source>
        <translation>文档字体中字形的嵌套超过 %1 层。</translation>
    </message>
    <message>
        <source>the glyphs of the document's fonts show more than %1 others</source>
        <translation>文档字体中的字形显示的其他字形超过 %1 个。</translation>
    </message>
    <message>
        <source>the document uses entities more than %1 times</source>
        <translation>文档使用实体超过 %1 次。</translation>
    </message>
    <message>
        <source>the entities of the document expand to more than %1 MiB</source>
        <translation>文档的实体展开后超过 %1 MiB。</translation>
    </message>
    <message>
        <source>the entities of the document refer to one another without end</source>
        <translation>文档的实体无休止地互相引用。</translation>
    </message>
    <message>
        <source>the picture is wider or higher than %1 points</source>
        <translation>图片的宽度或高度超过 %1 点。</translation>
    </message>
    <message>
        <source>the picture cannot be read</source>
        <translation>无法读取此图片。</translation>
    </message>
    <message>
        <source>the picture holds something that cannot be drawn</source>
        <translation>图片含有无法绘制的内容。</translation>
    </message>
    <message>
        <source>the encoding %1 is not known</source>
        <translation>无法识别编码 %1。</translation>
    </message>
    <message>
        <source>the bytes are not text in the encoding %1</source>
        <translation>这些字节不是编码 %1 的文本。</translation>
    </message>
    <message>
        <source>the document refers to other files, which are never loaded (references: %1)</source>
        <translation>文档引用了其他文件，这些文件从不加载（引用：%1）。</translation>
    </message>
    <message>
        <source>the document has scripts, which are never run</source>
        <translation>文档含有脚本，但从不运行。</translation>
    </message>
    <message>
        <source>the document is animated and is shown as it stands at rest</source>
        <translation>文档带有动画，按静止状态显示。</translation>
    </message>
    <message>
        <source>the font %1 is missing, another stands in for it</source>
        <translation>缺少字体 %1，已用其他字体代替。</translation>
    </message>
    <message>
        <source>the font %1 is missing, %2 stands in for it</source>
        <translation>缺少字体 %1，已用 %2 代替。</translation>
    </message>
    <message>
        <source>the picture was not ready within %1 seconds</source>
        <translation>图片未能在 %1 秒内就绪。</translation>
    </message>
    <message>
        <source>the picture was not ready within the time that it is allowed</source>
        <translation>图片未能在允许的时间内就绪。</translation>
    </message>
    <message>
        <source>the picture needs more memory than it is allowed</source>
        <translation>图片需要的内存超出限额。</translation>
    </message>
    <message>
        <source>the picture needs more processor time than it is allowed</source>
        <translation>图片需要的处理器时间超出限额。</translation>
    </message>
    <message>
        <source>the picture needs more temporary files than it is allowed</source>
        <translation>图片需要的临时文件超出限额。</translation>
    </message>
    <message>
        <source>the picture nests deeper than can be drawn</source>
        <translation>图片嵌套过深，无法绘制。</translation>
    </message>
    <message>
        <source>the picture is larger than the memory that it was granted</source>
        <translation>图片大于允许的内存。</translation>
    </message>
    <message>
        <source>the picture would have more pixels than it is allowed</source>
        <translation>图片的像素数将超出限额。</translation>
    </message>
    <message>
        <source>the image would have a side of more than %1 pixels</source>
        <translation>图像的一边将超过 %1 像素。</translation>
    </message>
    <message>
        <source>the image would have more than %1 megapixels</source>
        <translation>图像将超过 %1 百万像素。</translation>
    </message>
    <message>
        <source>there is not enough memory for the picture</source>
        <translation>内存不足以处理此图片。</translation>
    </message>
    <message>
        <source>there is not enough memory for the document</source>
        <translation>内存不足以处理此文档。</translation>
    </message>
    <message>
        <source>there is not enough memory to draw the picture</source>
        <translation>内存不足以绘制此图片。</translation>
    </message>
    <message>
        <source>there is not enough memory to read the document</source>
        <translation>内存不足以读取此文档。</translation>
    </message>
    <message>
        <source>the picture is larger than files may become here</source>
        <translation>图片超过了此处允许的文件大小。</translation>
    </message>
    <message>
        <source>too many files are open for another picture</source>
        <translation>打开的文件过多，无法再处理图片。</translation>
    </message>
    <message>
        <source>the picture process ended without an answer</source>
        <translation>图片进程未作应答即已结束。</translation>
    </message>
    <message>
        <source>the picture process did not answer in time</source>
        <translation>图片进程未及时应答。</translation>
    </message>
    <message>
        <source>the picture process was killed by the system, which has probably run out of memory</source>
        <translation>图片进程已被系统终止，可能是内存不足。</translation>
    </message>
    <message>
        <source>the picture process gave an answer that cannot be true</source>
        <translation>图片进程给出了不可信的应答。</translation>
    </message>
    <message>
        <source>no process for the picture could be started</source>
        <translation>无法为图片启动进程。</translation>
    </message>
    <message>
        <source>the program that reads pictures could not be started</source>
        <translation>无法启动读取图片的程序。</translation>
    </message>
    <message>
        <source>the program that reads pictures has ended</source>
        <translation>读取图片的程序已退出。</translation>
    </message>
    <message>
        <source>the program that reads pictures has not answered yet</source>
        <translation>读取图片的程序尚未应答。</translation>
    </message>
    <message>
        <source>the picture process could not be confined: this system offers neither Landlock nor user namespaces with seccomp filters</source>
        <translation>无法隔离图片进程：此系统既不提供 Landlock，也不提供带 seccomp 过滤器的用户命名空间。</translation>
    </message>
    <message>
        <source>the drawing was stopped</source>
        <translation>已停止绘制。</translation>
    </message>
    <message>
        <source>the picture could not be processed</source>
        <translation>无法处理此图片。</translation>
    </message>
    <message>
        <source>the picture cannot be drawn at this size</source>
        <translation>无法以此大小绘制图片。</translation>
    </message>
    <message>
        <source>the file exists already</source>
        <translation>文件已存在。</translation>
    </message>
    <message>
        <source>the folder to write to does not exist</source>
        <translation>目标文件夹不存在。</translation>
    </message>
    <message>
        <source>there is a folder of that name</source>
        <translation>已有同名文件夹。</translation>
    </message>
    <message>
        <source>there is no space left to write to</source>
        <translation>没有剩余空间可写入。</translation>
    </message>
    <message>
        <source>writing there is not permitted</source>
        <translation>不允许写入该位置。</translation>
    </message>
    <message>
        <source>the file could not be written (%1)</source>
        <translation>无法写入文件（%1）。</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>这不是普通文件。</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>文件是只读的。</translation>
    </message>
    <message>
        <source>the rectangle is empty or out of range</source>
        <translation>矩形为空或超出范围。</translation>
    </message>
    <message>
        <source>no profile of a press is installed (%1)</source>
        <translation>未安装印刷机的配置文件（%1）。</translation>
    </message>
    <message>
        <source>the page cannot be written as PostScript</source>
        <translation>无法将此页写为 PostScript。</translation>
    </message>
    <message>
        <source>the page cannot be written as SVG</source>
        <translation>无法将此页写为 SVG。</translation>
    </message>
    <message>
        <source>the picture cannot be written as PDF</source>
        <translation>无法将此图片写为 PDF。</translation>
    </message>
    <message>
        <source>the page is too large or too deeply nested to become SVG</source>
        <translation>页面过大或嵌套过深，无法转为 SVG。</translation>
    </message>
    <message>
        <source>only EPS files can be repaired</source>
        <translation>只能修复 EPS 文件。</translation>
    </message>
    <message>
        <source>an SVG picture has no inks: its colours are those of a screen</source>
        <translation>SVG 图片没有油墨：它的颜色是屏幕颜色。</translation>
    </message>
    <message>
        <source>at %1 dpi a plate has %2 million pixels, and at most %3 million can be handled</source>
        <translation>在 %1 dpi 下每张印版有 %2 百万像素，最多可处理 %3 百万。</translation>
    </message>
    <message>
        <source>the print service cannot be reached</source>
        <translation>无法连接打印服务。</translation>
    </message>
    <message>
        <source>the print service does not answer</source>
        <translation>打印服务没有应答。</translation>
    </message>
    <message>
        <source>the print service gives no answer that makes sense</source>
        <translation>打印服务没有给出可以理解的应答。</translation>
    </message>
    <message>
        <source>there is no printer</source>
        <translation>没有打印机。</translation>
    </message>
    <message>
        <source>no printer is the default one</source>
        <translation>没有默认打印机。</translation>
    </message>
    <message>
        <source>there is no printer named “%1”</source>
        <translation>没有名为“%1”的打印机。</translation>
    </message>
    <message>
        <source>the printer “%1” takes no jobs</source>
        <translation>打印机“%1”不接受任务。</translation>
    </message>
    <message>
        <source>the printer “%1” is not open to this user</source>
        <translation>此用户无权使用打印机“%1”。</translation>
    </message>
    <message>
        <source>the printer “%1” wants a user name and a password, which are not asked for here</source>
        <translation>打印机“%1”需要用户名和密码，此处无法输入。</translation>
    </message>
    <message>
        <source>the printer “%1” did not take the job: %2</source>
        <translation>打印机“%1”未接受任务：%2。</translation>
    </message>
    <message>
        <source>the document has %1 pages, and only the first %2 of them can be printed</source>
        <translation>文档有 %1 页，只能打印前 %2 页。</translation>
    </message>
    <message>
        <source>there are no such pages: the document has %1</source>
        <translation>没有这些页：文档共 %1 页。</translation>
    </message>
    <message>
        <source>there are no such pages: the picture takes %1</source>
        <translation>没有这些页：图片占 %1 页。</translation>
    </message>
    <message>
        <source>the pages would take more than %1 sheets of paper</source>
        <translation>这些页将占用超过 %1 张纸。</translation>
    </message>
    <message>
        <source>the picture would take more than %1 sheets of paper</source>
        <translation>图片将占用超过 %1 张纸。</translation>
    </message>
    <message>
        <source>the margins leave no room on the paper</source>
        <translation>页边距过大，纸上没有剩余空间。</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>没有访问权限。</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>设备读写出错。</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>打开的文件过多。</translation>
    </message>
    <message>
        <source>its PostScript</source>
        <translation>其 PostScript</translation>
    </message>
    <message>
        <source>its preview</source>
        <translation>其预览</translation>
    </message>
    <message>
        <source>its plates</source>
        <translation>其印版</translation>
    </message>
    <message>
        <source>its page</source>
        <translation>其页面</translation>
    </message>
    <message>
        <source>its pages</source>
        <translation>其各页</translation>
    </message>
    <message>
        <source>no reason is given</source>
        <translation>未说明原因。</translation>
    </message>
    <message>
        <source>actions that start programs or open other files were left out</source>
        <translation>已略去启动程序或打开其他文件的动作。</translation>
    </message>
    <message>
        <source>what the document does when it is opened was left out</source>
        <translation>已略去文档打开时执行的动作。</translation>
    </message>
    <message>
        <source>references to files beside the document were left out</source>
        <translation>已略去对文档之外文件的引用。</translation>
    </message>
    <message>
        <source>PostScript programs that the document holds were left out</source>
        <translation>已略去文档中的 PostScript 程序。</translation>
    </message>
    <message>
        <source>glyphs that show themselves were left out</source>
        <translation>已略去显示自身的字形。</translation>
    </message>
    <message>
        <source>glyphs that show too many others were left out</source>
        <translation>已略去显示过多其他字形的字形。</translation>
    </message>
    <message>
        <source>a font cannot be taken over; another stands in for it</source>
        <translation>有一种字体无法沿用，已用其他字体代替。</translation>
    </message>
    <message>
        <source>the font %1 cannot be taken over; another stands in for it</source>
        <translation>字体 %1 无法沿用，已用其他字体代替。</translation>
    </message>
    <message>
        <source>the source has no PostScript, so the file holds a preview and nothing else</source>
        <translation>来源没有 PostScript，因此文件只含预览。</translation>
    </message>
    <message>
        <source>the picture gives no PostScript, so the file holds a preview and nothing else</source>
        <translation>图片无法生成 PostScript，因此文件只含预览。</translation>
    </message>
    <message>
        <source>the PDF has no subject, because the document has a description but no title</source>
        <translation>文档有说明但没有标题，因此 PDF 没有主题。</translation>
    </message>
    <message>
        <source>the preview could not be written as TIFF</source>
        <translation>无法将预览写为 TIFF。</translation>
    </message>
    <message>
        <source>the result could not be opened again: %1</source>
        <translation>无法重新打开结果：%1。</translation>
    </message>
    <message>
        <source>an image with more pixels than are granted was left out</source>
        <translation>已略去一个像素数超出限额的图像。</translation>
    </message>
    <message>
        <source>letters of more fonts or shapes than are granted were left out</source>
        <translation>已略去字体或字形数超出限额的字母。</translation>
    </message>
    <message>
        <source>a group that knocks out or blends with what lies below it is put together by itself, as SVG has it</source>
        <translation>挖空的组或与其下方内容混合的组会按 SVG 的方式单独合成。</translation>
    </message>
    <message>
        <source>some text stays outlines: it is a line or a clip, or its font may not or cannot be embedded</source>
        <translation>部分文字仍为轮廓：它是线条或剪切路径，或其字体不可或不能嵌入。</translation>
    </message>
    <message>
        <source>of some characters the document does not tell the meaning: they are shown, and no search finds them</source>
        <translation>文档未说明某些字符的含义：它们会显示，但无法被搜索到。</translation>
    </message>
    <message>
        <source>what is drawn through a filter (elements: %1) is held as an image</source>
        <translation>通过滤镜绘制的内容（元素：%1）以图像保存。</translation>
    </message>
    <message>
        <source>masks (elements: %1) are held as images, what they mask is not</source>
        <translation>蒙版（元素：%1）以图像保存，被蒙版的内容则不是。</translation>
    </message>
    <message>
        <source>the text is in %1 and is handed on as UTF-8</source>
        <translation>文本编码为 %1，将以 UTF-8 传递。</translation>
    </message>
    <message>
        <source>the document's width or height is not a length and is passed over</source>
        <translation>文档的宽度或高度不是长度，已忽略。</translation>
    </message>
    <message>
        <source>the document's view box is not readable and is passed over</source>
        <translation>文档的 viewBox 无法读取，已忽略。</translation>
    </message>
    <message>
        <source>it draws nothing and states no bounding box</source>
        <translation>它什么也不绘制，也没有边界框。</translation>
    </message>
    <message>
        <source>it cannot be mended: %1</source>
        <translation>无法修复：%1。</translation>
    </message>
    <message>
        <source>the program was taken out of %1</source>
        <translation>已从 %1 中取出程序。</translation>
    </message>
    <message>
        <source>the program was taken out of its binary file</source>
        <translation>已从二进制文件中取出程序。</translation>
    </message>
    <message>
        <source>the preview was left out</source>
        <translation>已略去预览。</translation>
    </message>
    <message>
        <source>the Windows metafile was left out</source>
        <translation>已略去 Windows 图元文件。</translation>
    </message>
    <message>
        <source>a preview of %1 by %2 pixels was made</source>
        <translation>已生成 %1 × %2 像素的预览。</translation>
    </message>
    <message>
        <source>the first line is %!PS-Adobe-3.0 EPSF-3.0</source>
        <translation>首行现为 %!PS-Adobe-3.0 EPSF-3.0。</translation>
    </message>
    <message>
        <source>%%EndComments was put in</source>
        <translation>已插入 %%EndComments。</translation>
    </message>
    <message>
        <source>a second %%EndComments was left out</source>
        <translation>已略去第二个 %%EndComments。</translation>
    </message>
    <message>
        <source>showpage was put in</source>
        <translation>已插入 showpage。</translation>
    </message>
    <message>
        <source>%%EOF was put in</source>
        <translation>已插入 %%EOF。</translation>
    </message>
    <message>
        <source>what stood behind %%EOF was left out</source>
        <translation>已略去 %%EOF 之后的内容。</translation>
    </message>
    <message>
        <source>what stood before the first line was left out</source>
        <translation>已略去第一行之前的内容。</translation>
    </message>
    <message>
        <source>the box at the end of the file stands in its header</source>
        <translation>文件末尾的边界框已移到文件头。</translation>
    </message>
    <message>
        <source>the bounding box is %1 (%2)</source>
        <translation>边界框为 %1（%2）。</translation>
    </message>
    <message>
        <source>%1 was left out, because it stood out of order</source>
        <translation>已略去 %1，因为它的位置不对。</translation>
    </message>
    <message>
        <source>the document is larger than %1 MiB</source>
        <translation>文档大于 %1 MiB。</translation>
    </message>
    <message>
        <source>the compressed data is larger than %1 MiB</source>
        <translation>压缩数据大于 %1 MiB。</translation>
    </message>
    <message>
        <source>there is not enough memory to inflate the data</source>
        <translation>内存不足以解压数据。</translation>
    </message>
    <message>
        <source>the document has a filter with a matrix of more than %1 numbers</source>
        <translation>文档含有矩阵超过 %1 个数的滤镜。</translation>
    </message>
    <message>
        <source>the selectors of the document's style sheets nest more than %1 deep</source>
        <translation>文档样式表中选择器的嵌套超过 %1 层。</translation>
    </message>
    <message>
        <source>the document has text of more than %1 units in size</source>
        <translation>文档含有大小超过 %1 单位的文字。</translation>
    </message>
    <message>
        <source>the plates of the page have more pixels than can be handled; a lower resolution helps</source>
        <translation>此页印版的像素过多；请降低分辨率。</translation>
    </message>
    <message>
        <source>Ghostscript did not separate the page</source>
        <translation>Ghostscript 未能对此页分色。</translation>
    </message>
    <message>
        <source>Ghostscript (gs) cannot be started</source>
        <translation>无法启动 Ghostscript (gs)。</translation>
    </message>
    <message>
        <source>the interpreter of PostScript could not be confined</source>
        <translation>无法隔离 PostScript 解释器。</translation>
    </message>
    <message>
        <source>there is no %%BoundingBox</source>
        <translation>没有 %%BoundingBox。</translation>
    </message>
    <message>
        <source>the file is wrapped as %1, with a Macintosh picture (PICT) of %2 × %3 points as its preview</source>
        <translation>文件以 %1 形式包装，预览为 %2 × %3 点的 Macintosh 图片（PICT）。</translation>
    </message>
    <message>
        <source>there is no preview</source>
        <translation>没有预览。</translation>
    </message>
    <message>
        <source>the file does not begin with %!PS-Adobe</source>
        <translation>文件不以 %!PS-Adobe 开头。</translation>
    </message>
    <message>
        <source>showpage is missing</source>
        <translation>缺少 showpage。</translation>
    </message>
    <message>
        <source>the font %1 is a Type 3 font</source>
        <translation>字体 %1 是 Type 3 字体。</translation>
    </message>
    <message>
        <source>the font %1 is not embedded</source>
        <translation>字体 %1 未嵌入。</translation>
    </message>
    <message>
        <source>the font %1 is embedded as a whole</source>
        <translation>字体 %1 已完整嵌入。</translation>
    </message>
    <message>
        <source>there are RGB colours</source>
        <translation>有 RGB 颜色。</translation>
    </message>
    <message>
        <source>white overprints, and will vanish</source>
        <translation>白色设为叠印，将会消失。</translation>
    </message>
    <message>
        <source>small black text does not overprint</source>
        <translation>小号黑色文字未叠印。</translation>
    </message>
    <message>
        <source>the document is encrypted</source>
        <translation>文档已加密。</translation>
    </message>
    <message>
        <source>it has scripts or animations, which are not run</source>
        <translation>含有脚本或动画，不会运行。</translation>
    </message>
    <message>
        <source>its width or height is absent, or has no unit</source>
        <translation>缺少宽度或高度，或没有单位。</translation>
    </message>
    <message>
        <source>there is transparency</source>
        <translation>有透明效果。</translation>
    </message>
    <message>
        <source>a part of the page was not looked at</source>
        <translation>页面的一部分未检查。</translation>
    </message>
    <message>
        <source>%%BoundingBox holds "%1" instead of four numbers</source>
        <translation>%%BoundingBox 的内容是“%1”，而不是四个数值。</translation>
    </message>
    <message>
        <source>%%BoundingBox holds "%1", which are not all whole numbers</source>
        <translation>%%BoundingBox 的内容“%1”并非全是整数。</translation>
    </message>
    <message>
        <source>%%BoundingBox %1 does not enclose %%HiResBoundingBox %2</source>
        <translation>%%BoundingBox %1 未包住 %%HiResBoundingBox %2。</translation>
    </message>
    <message>
        <source>%%BoundingBox %1 is far larger than %%HiResBoundingBox %2</source>
        <translation>%%BoundingBox %1 远大于 %%HiResBoundingBox %2。</translation>
    </message>
    <message>
        <source>without a name</source>
        <translation>无名称</translation>
    </message>
    <message>
        <source>%%BoundingBox is promised for the end and does not come</source>
        <translation>%%BoundingBox 声明在结尾给出，但结尾处没有。</translation>
    </message>
    <message>
        <source>the bounding box %1 has no area</source>
        <translation>边界框 %1 没有面积。</translation>
    </message>
    <message>
        <source>nothing but white is drawn inside the bounding box</source>
        <translation>边界框内只绘制了白色。</translation>
    </message>
    <message>
        <source>the bounding box %1 cuts the ink off, which reaches %2 pt beyond it: %3</source>
        <translation>边界框 %1 截去了图形，图形超出 %2 pt：%3。</translation>
    </message>
    <message>
        <source>the bounding box %1 is more than twice as large as the ink: %2</source>
        <translation>边界框 %1 的大小超过图形的两倍：%2。</translation>
    </message>
    <message>
        <source>the %1 section ends at byte %2, the file at byte %3</source>
        <translation>%1 部分止于第 %2 字节，而文件止于第 %3 字节。</translation>
    </message>
    <message>
        <source>the %1 section lies over another part of the file</source>
        <translation>%1 部分与文件的其他部分重叠。</translation>
    </message>
    <message>
        <source>bytes before %!PS-Adobe: %1</source>
        <translation>%!PS-Adobe 之前的字节数：%1。</translation>
    </message>
    <message>
        <source>bytes behind %%EOF: %1</source>
        <translation>%%EOF 之后的字节数：%1。</translation>
    </message>
    <message>
        <source>the file needs fonts that it does not bring: %1</source>
        <translation>文件需要未附带的字体：%1。</translation>
    </message>
    <message>
        <source>the preview is %1 by %2 pixels large, the bounding box %3 by %4 points</source>
        <translation>预览为 %1 × %2 像素，边界框为 %3 × %4 点。</translation>
    </message>
    <message>
        <source>the preview shows another picture than the program draws (mean difference %1 %)</source>
        <translation>预览与程序绘制的图片不同（平均差异 %1%）。</translation>
    </message>
    <message>
        <source>the first line "%1" does not say %!PS-Adobe-3.0 EPSF-3.0</source>
        <translation>首行“%1”不是 %!PS-Adobe-3.0 EPSF-3.0。</translation>
    </message>
    <message>
        <source>the first line declares PS-Adobe-%1 and EPSF-%2, which do not exist</source>
        <translation>首行声明了不存在的 PS-Adobe-%1 和 EPSF-%2。</translation>
    </message>
    <message>
        <source>the header has no %%EndComments</source>
        <translation>文件头没有 %%EndComments。</translation>
    </message>
    <message>
        <source>%%EndComments stands behind the first line that is no comment</source>
        <translation>%%EndComments 位于首个非注释行之后。</translation>
    </message>
    <message>
        <source>lines of more than 255 bytes: %1, the first is line %2</source>
        <translation>超过 255 字节的行：%1 行，首个在第 %2 行。</translation>
    </message>
    <message>
        <source>lines end in %1 different ways</source>
        <translation>行尾有 %1 种不同形式。</translation>
    </message>
    <message>
        <source>a line is %1 pt thin, %2 pt are asked for</source>
        <translation>有线条粗 %1 pt，要求 %2 pt。</translation>
    </message>
    <message>
        <source>a text is %1 pt small, %2 pt are asked for</source>
        <translation>有文字大小为 %1 pt，要求 %2 pt。</translation>
    </message>
    <message>
        <source>a colour takes %1 % of ink, %2 % are allowed</source>
        <translation>有颜色的总墨量为 %1%，允许 %2%。</translation>
    </message>
    <message>
        <source>the %1 image of %2 by %3 pixels has %4 dpi, %5 are asked for</source>
        <translation>%2 × %3 像素的图像（%1）为 %4 dpi，要求 %5。</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>彩色</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>灰度</translation>
    </message>
    <message>
        <source>line art</source>
        <translation>线条稿</translation>
    </message>
    <message>
        <source>it names the colour space %1, which the profile does not</source>
        <translation>含有配置未列出的色彩空间 %1。</translation>
    </message>
    <message>
        <source>there is the spot ink %1</source>
        <translation>有专色油墨 %1。</translation>
    </message>
    <message>
        <source>RGB colours stand beside CMYK colours</source>
        <translation>RGB 颜色与 CMYK 颜色并存。</translation>
    </message>
    <message>
        <source>its permissions forbid %1</source>
        <translation>其权限禁止：%1。</translation>
    </message>
    <message>
        <source>it claims to keep %1</source>
        <translation>声明遵循 %1。</translation>
    </message>
    <message>
        <source>it claims to keep %1 and has no output intent</source>
        <translation>声明遵循 %1，但没有输出意图。</translation>
    </message>
    <message>
        <source>it refers to other files, which are never loaded (references: %1)</source>
        <translation>引用了其他文件，这些文件从不加载（引用：%1）。</translation>
    </message>
    <message>
        <source>elements drawn through filters become images in print: %1</source>
        <translation>因滤镜而在打印时变为图像的元素：%1。</translation>
    </message>
    <message>
        <source>something is drawn up to %1 pt outside the page</source>
        <translation>有内容绘制到页面外 %1 pt。</translation>
    </message>
    <message>
        <source>only the first %1 pages were looked at</source>
        <translation>只检查了前 %1 页。</translation>
    </message>
    <message>
        <source>the picture is %1 mm wide, columns are %2 mm</source>
        <translation>图片宽 %1 mm，栏宽 %2 mm。</translation>
    </message>
    <message>
        <source>the file is wrapped as %1</source>
        <translation>文件以 %1 形式包装。</translation>
    </message>
    <message>
        <source>%1 takes language level %2, and the header declares %3</source>
        <translation>%1 需要语言级别 %2，而文件头声明的是 %3。</translation>
    </message>
    <message>
        <source>none above 1</source>
        <translation>不高于 1</translation>
    </message>
    <message>
        <source>%1 has no place in an EPS file</source>
        <translation>%1 不应出现在 EPS 文件中。</translation>
    </message>
    <message>
        <source>%1 is declared, and line %2 holds the byte %3</source>
        <translation>声明为 %1，但第 %2 行含有字节 %3。</translation>
    </message>
    <message>
        <source>%1 stands behind %2</source>
        <translation>%1 位于 %2 之后。</translation>
    </message>
    <message>
        <source>%1 ends what did not begin</source>
        <translation>%1 结束了并未开始的内容。</translation>
    </message>
    <message>
        <source>%1 has no end</source>
        <translation>%1 没有结尾。</translation>
    </message>
    <message>
        <source>the embedded preview is malformed</source>
        <translation>嵌入的预览格式有误。</translation>
    </message>
    <message>
        <source>the embedded preview is too large</source>
        <translation>嵌入的预览过大。</translation>
    </message>
    <message>
        <source>the embedded preview lies outside of the file</source>
        <translation>嵌入的预览位于文件之外。</translation>
    </message>
    <message>
        <source>the preview is not a readable TIFF image</source>
        <translation>预览不是可读取的 TIFF 图像。</translation>
    </message>
    <message>
        <source>the preview has more than %1 megapixels</source>
        <translation>预览超过 %1 百万像素。</translation>
    </message>
    <message>
        <source>the embedded Windows metafile is damaged</source>
        <translation>嵌入的 Windows 图元文件已损坏。</translation>
    </message>
    <message>
        <source>the embedded Windows metafile tells no size</source>
        <translation>嵌入的 Windows 图元文件未说明大小。</translation>
    </message>
    <message>
        <source>a bitmap in the Windows metafile is damaged</source>
        <translation>Windows 图元文件中的一个位图已损坏。</translation>
    </message>
    <message>
        <source>a bitmap in the Windows metafile is of a kind that is not drawn</source>
        <translation>Windows 图元文件中有一种不支持绘制的位图。</translation>
    </message>
    <message>
        <source>the part of norvex that this picture needs is missing or damaged: %1</source>
        <translation>此图片所需的 Norvex 组件缺失或已损坏：%1。</translation>
    </message>
    <message>
        <source>the measures of the picture are larger than can be handled</source>
        <translation>图片的尺寸过大，无法处理。</translation>
    </message>
    <message>
        <source>the picture process cannot be waited for: too many files are open</source>
        <translation>打开的文件过多，无法等待图片进程。</translation>
    </message>
    <message>
        <source>no connection to a picture process could be made</source>
        <translation>无法连接到图片进程。</translation>
    </message>
    <message>
        <source>the picture cannot be made in this size or at this place</source>
        <translation>无法以此大小或在此位置生成图片。</translation>
    </message>
    <message>
        <source>the picture is too large to be drawn without seams</source>
        <translation>图片太大，无法无接缝地绘制</translation>
    </message>
    <message>
        <source>there was not enough memory for work in the background</source>
        <translation>内存不足，无法在后台工作</translation>
    </message>
    <message>
        <source>there is no picture</source>
        <translation>没有图片。</translation>
    </message>
    <message>
        <source>these pixels cannot be converted</source>
        <translation>无法转换这些像素。</translation>
    </message>
    <message>
        <source>the profile of the press cannot be used</source>
        <translation>无法使用印刷机的配置文件。</translation>
    </message>
    <message>
        <source>a section of it is missing</source>
        <translation>其中缺少一个区段。</translation>
    </message>
    <message>
        <source>it has no end</source>
        <translation>没有结尾。</translation>
    </message>
    <message>
        <source>the source has no PostScript</source>
        <translation>来源没有 PostScript。</translation>
    </message>
    <message>
        <source>the source has no comments that a preview could follow</source>
        <translation>来源中没有可在其后放置预览的注释。</translation>
    </message>
    <message>
        <source>the document has a description but no title to store with it</source>
        <translation>文档有说明，但没有可随之保存的标题。</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript: it does not begin with %!</source>
        <translation>这不是封装 PostScript：它不以 %! 开头。</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript: it does not begin with %! and states no bounding box</source>
        <translation>这不是封装 PostScript：它不以 %! 开头，也没有边界框。</translation>
    </message>
    <message>
        <source>the document is protected by encryption and does not allow %1; what is made of it is not protected</source>
        <translation>此文档受加密保护，不允许%1；由它生成的内容则不受保护。</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>changing</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>copying</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>the Illustrator operator %1 is not understood and was left out</source>
        <translation>无法理解 Illustrator 操作符 %1，已将其略去。</translation>
    </message>
    <message>
        <source>the Illustrator operator %1 was left out where its operands are not understood</source>
        <translation>在无法理解操作数之处，已略去 Illustrator 操作符 %1。</translation>
    </message>
    <message>
        <source>the pattern %1 is not in the file in a form that is understood and was left out</source>
        <translation>图案 %1 未以可理解的形式存于文件中，已将其略去。</translation>
    </message>
    <message>
        <source>the gradient %1 is not in the file: a plain colour stands for it</source>
        <translation>渐变 %1 不在文件中，已用纯色代替。</translation>
    </message>
    <message>
        <source>the placed picture %1 is not in the file</source>
        <translation>置入的图片 %1 不在文件中。</translation>
    </message>
    <message>
        <source>a pdfmark whose operands are wrong was left out</source>
        <translation>已略去一个操作数有误的 pdfmark。</translation>
    </message>
    <message>
        <source>a part of the artwork could not be drawn (%1)</source>
        <translation>图稿有一部分无法绘制（%1）。</translation>
    </message>
    <message>
        <source>the page has errors, and something may be missing on its plates</source>
        <translation>页面有错误，其印版上可能缺少内容。</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1，第 %2 行：%3。</translation>
    </message>
    <message>
        <source>there is no %1, only [limits] and [severities]</source>
        <translation>没有 %1，只有 [limits] 和 [severities]。</translation>
    </message>
    <message>
        <source>%1 is a number from 0</source>
        <translation>%1 应为不小于 0 的数值。</translation>
    </message>
    <message>
        <source>rgb is true or false</source>
        <translation>rgb 应为 true 或 false。</translation>
    </message>
    <message>
        <source>colour-spaces is a list of names</source>
        <translation>colour-spaces 是一个名称列表。</translation>
    </message>
    <message>
        <source>columns-mm is a list of numbers</source>
        <translation>columns-mm 应为数值列表。</translation>
    </message>
    <message>
        <source>there is no limit %1</source>
        <translation>没有名为 %1 的限制。</translation>
    </message>
    <message>
        <source>there is no rule %1</source>
        <translation>没有名为 %1 的规则。</translation>
    </message>
    <message>
        <source>%1 is one of: error, warning, note, off</source>
        <translation>%1 应为下列之一：error、warning、note、off。</translation>
    </message>
    <message>
        <source>this is neither a [table] nor a name with = and a value</source>
        <translation>这既不是 [表]，也不是带 = 和值的名称。</translation>
    </message>
    <message>
        <source>%1 is no ordinary file, as a profile has to be</source>
        <translation>%1 不是普通文件，而配置必须是普通文件。</translation>
    </message>
    <message>
        <source>there is no profile %1, and no file of that name; profiles are: %2</source>
        <translation>没有名为 %1 的配置或文件；可用的配置：%2。</translation>
    </message>
    <message>
        <source>%1 is too large for a profile</source>
        <translation>%1 过大，不能用作配置。</translation>
    </message>
    <message>
        <source>Landlock: on, version %1</source>
        <translation>Landlock：已启用，版本 %1。</translation>
    </message>
    <message>
        <source>Landlock: missing</source>
        <translation>Landlock：不可用。</translation>
    </message>
    <message>
        <source>No rules of the kernel about files</source>
        <translation>内核没有关于文件的规则。</translation>
    </message>
    <message>
        <source>Nothing but what engines need can be read, nothing but scratch files written</source>
        <translation>只能读取引擎所需的内容，只能写入临时文件。</translation>
    </message>
    <message>
        <source>Nothing is listed, removed or started besides</source>
        <translation>除此之外不能列出、删除或启动任何内容。</translation>
    </message>
    <message>
        <source>There is no TCP</source>
        <translation>没有 TCP。</translation>
    </message>
    <message>
        <source>There are no signals and no abstract sockets to others</source>
        <translation>没有通往其他进程的信号和抽象套接字。</translation>
    </message>
    <message>
        <source>Devices cannot be controlled</source>
        <translation>不能控制设备。</translation>
    </message>
    <message>
        <source>This version does not cover %1</source>
        <translation>此版本不涵盖：%1。</translation>
    </message>
    <message>
        <source>TCP</source>
        <translation>TCP</translation>
    </message>
    <message>
        <source>signals and abstract sockets</source>
        <translation>信号和抽象套接字</translation>
    </message>
    <message>
        <source>control of devices</source>
        <translation>控制设备</translation>
    </message>
    <message>
        <source>cutting files off</source>
        <translation>截断文件</translation>
    </message>
    <message>
        <source>System calls (seccomp): on</source>
        <translation>系统调用 (seccomp)：已启用。</translation>
    </message>
    <message>
        <source>Only calls on a list: no programs, processes, sockets, tracing, mounts, keys, changed modes or owners</source>
        <translation>只允许列表中的调用：不允许程序、进程、套接字、跟踪、挂载、密钥以及更改权限或所有者。</translation>
    </message>
    <message>
        <source>Engines open nothing for writing</source>
        <translation>引擎不会以写入方式打开任何内容。</translation>
    </message>
    <message>
        <source>System calls (seccomp): missing</source>
        <translation>系统调用 (seccomp)：不可用。</translation>
    </message>
    <message>
        <source>Every call can be made</source>
        <translation>可以进行任何调用。</translation>
    </message>
    <message>
        <source>File view (user and mount namespaces): on</source>
        <translation>文件视图（用户和挂载命名空间）：已启用。</translation>
    </message>
    <message>
        <source>Files other than those that engines need do not exist, and all but scratch files are read-only</source>
        <translation>只存在引擎所需的文件，除临时文件外均为只读。</translation>
    </message>
    <message>
        <source>File view (user and mount namespaces): missing</source>
        <translation>文件视图（用户和挂载命名空间）：不可用。</translation>
    </message>
    <message>
        <source>The system does not permit them to this user</source>
        <translation>系统不允许此用户使用。</translation>
    </message>
    <message>
        <source>Network and messages (namespaces): on</source>
        <translation>网络和消息（命名空间）：已启用。</translation>
    </message>
    <message>
        <source>No network exists</source>
        <translation>不存在网络。</translation>
    </message>
    <message>
        <source>No shared memory or queues of others exist</source>
        <translation>不存在他人的共享内存或队列。</translation>
    </message>
    <message>
        <source>Of a single picture on the command line: off, for they take time</source>
        <translation>在命令行处理单张图片时：关闭，因为需要时间。</translation>
    </message>
    <message>
        <source>Network and messages (namespaces): missing</source>
        <translation>网络和消息（命名空间）：不可用。</translation>
    </message>
    <message>
        <source>What else is on keeps pictures from them</source>
        <translation>其他已启用的措施会阻止图片接触它们。</translation>
    </message>
    <message>
        <source>Limits: memory, processor time, size and number of files, scratch files; no core files</source>
        <translation>限制：内存、处理器时间、文件大小和数量、临时文件；不生成核心转储文件。</translation>
    </message>
    <message>
        <source>This build watches itself, for which it leaves layers out</source>
        <translation>此构建会监视自身，因此省略了一些防护层。</translation>
    </message>
    <message>
        <source>Each picture is read in a process of its own that is confined so</source>
        <translation>每张图片都在各自这样隔离的进程中读取。</translation>
    </message>
    <message>
        <source>Nothing keeps a picture from this user's files: norvex refuses to read any</source>
        <translation>没有任何措施能阻止图片访问此用户的文件：norvex 拒绝读取任何图片。</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
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
</context>
</TS>

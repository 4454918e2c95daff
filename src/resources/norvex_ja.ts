<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>About Norvex</source>
        <translation>Norvex について</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>AngleOfRotation</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>BackgroundColor</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Bad data.</source>
        <translation>ファイルに読み取れるデータがありません。</translation>
    </message>
    <message>
        <source>Fonts:</source>
        <translation>フォント:</translation>
    </message>
    <message>
        <source>Colors used:</source>
        <translation>使用している色:</translation>
    </message>
    <message>
        <source>%1 What is shown was read before.</source>
        <translation>%1 以前に読み込んだ内容を表示しています。</translation>
    </message>
    <message>
        <source>Bounding box:</source>
        <translation>バウンディングボックス:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>Chooses pictures and opens each in a window of its own</source>
        <translation>画像を選び、それぞれを別のウインドウで開きます</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>リストを消去</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>検索バーを閉じる</translation>
    </message>
    <message>
        <source>ColorSpaceName:</source>
        <translation>カラースペース:</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>コマンドとキー</translation>
    </message>
    <message>
        <source>Compressed SVG image (SVGZ)</source>
        <translation>圧縮 SVG 画像 (SVGZ)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>パスをコピー</translation>
    </message>
    <message>
        <source>Copy Selected Text</source>
        <translation>選択したテキストをコピー</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>値をコピー</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>コピーしています…</translation>
    </message>
    <message>
        <source>Copyright:</source>
        <translation>著作権:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>作成日時:</translation>
    </message>
    <message>
        <source>Creator:</source>
        <translation>作成アプリケーション:</translation>
    </message>
    <message>
        <source>D.M.S.</source>
        <translation>度・分・秒：12.3045 は 12° 30′ 45″ です</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Down by %1 pt</source>
        <translation>%1 pt 下へ</translation>
    </message>
    <message>
        <source>Drag twice to mark a rectangle. Drag with the Ctrl key held to take it to another program as a file.</source>
        <translation>2 回ドラッグして矩形を指定します。Ctrl キーを押しながらドラッグすると、ファイルとしてほかのプログラムに渡せます。</translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>描画しています…</translation>
    </message>
    <message>
        <source>EPS, Illustrator, PDF and SVG pictures</source>
        <translation>EPS、Illustrator、PDF、SVG の画像</translation>
    </message>
    <message>
        <source>Encapsulated PostScript (EPS)</source>
        <translation>Encapsulated PostScript (EPS)</translation>
    </message>
    <message>
        <source>Encapsulated PostScript with interchange preview (EPSI)</source>
        <translation>交換用プレビュー付き Encapsulated PostScript (EPSI)</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>ソーステキストのエンコーディング</translation>
    </message>
    <message>
        <source>Encoding:</source>
        <translation>エンコーディング:</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>この書類のファイル</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>For:</source>
        <translation>依頼者:</translation>
    </message>
    <message>
        <source>GIF image</source>
        <translation>GIF 画像</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Hide extension</source>
        <translation>拡張子を隠す</translation>
    </message>
    <message>
        <source>High resolution:</source>
        <translation>高解像度:</translation>
    </message>
    <message>
        <source>Higher by %1 pt</source>
        <translation>%1 pt 高く</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>インスペクタ</translation>
    </message>
    <message>
        <source>JPEG image</source>
        <translation>JPEG 画像</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>環境設定(&amp;E)…</translation>
    </message>
    <message>
        <source>Di&amp;m Outside of Selection</source>
        <translation>選択範囲の外を薄くする(&amp;M)</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウインドウ</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>&amp;Window fits picture</source>
        <translation>ウインドウを画像に合わせる(&amp;W)</translation>
    </message>
    <message>
        <source>No larger than the picture, and smaller with it.</source>
        <translation>画像より大きくならず、画像とともに小さくなります。</translation>
    </message>
    <message>
        <source>Chec&amp;kerboard behind new pictures</source>
        <translation>新しい画像の背景を市松模様にする(&amp;K)</translation>
    </message>
    <message>
        <source>Shows where nothing is painted, instead of the background colour.</source>
        <translation>背景色の代わりに、何も描かれていない所を示します。</translation>
    </message>
    <message>
        <source>Di&amp;m what is outside of the selection</source>
        <translation>選択範囲の外を薄くする(&amp;M)</translation>
    </message>
    <message>
        <source>What is copied, saved or printed stands out.</source>
        <translation>コピー、保存、プリントされる部分を目立たせます。</translation>
    </message>
    <message>
        <source>&amp;Unit of lengths:</source>
        <translation>長さの単位(&amp;U):</translation>
    </message>
    <message>
        <source>Of coordinates, of the size of a selection, and of typed numbers.</source>
        <translation>座標、選択範囲の大きさ、入力する数値の単位です。</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>ポイント</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>ミリメートル</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Picas</source>
        <translation>パイカ</translation>
    </message>
    <message>
        <source>&amp;Reload changed files by itself</source>
        <translation>変更されたファイルを自動的に再読み込みする(&amp;R)</translation>
    </message>
    <message>
        <source>Otherwise a bar in the window asks.</source>
        <translation>オフにすると、ウインドウ内のバーで確認します。</translation>
    </message>
    <message>
        <source>R&amp;emember files</source>
        <translation>ファイルを記憶する(&amp;E)</translation>
    </message>
    <message>
        <source>Recent files, and how their pictures were shown. Switching it off forgets all.</source>
        <translation>最近使ったファイルと画像の表示方法です。オフにするとすべて消去されます。</translation>
    </message>
    <message>
        <source>C&amp;lear History</source>
        <translation>履歴を消去(&amp;L)</translation>
    </message>
    <message>
        <source>Forgets the recent files, and how their pictures were shown.</source>
        <translation>最近使ったファイルと画像の表示方法を消去します。</translation>
    </message>
    <message>
        <source>Colours:</source>
        <translation>カラー:</translation>
    </message>
    <message>
        <source>RGB for screens</source>
        <translation>RGB（画面用）</translation>
    </message>
    <message>
        <source>Shades of grey</source>
        <translation>グレースケール</translation>
    </message>
    <message>
        <source>CMYK for print</source>
        <translation>CMYK（印刷用）</translation>
    </message>
    <message>
        <source>&amp;Real Size on This Screen</source>
        <translation>この画面での実寸(&amp;S)</translation>
    </message>
    <message>
        <source>Size the selection</source>
        <translation>選択範囲の大きさを変更</translation>
    </message>
    <message>
        <source>Drag a square beside it</source>
        <translation>縁の四角形をドラッグ</translation>
    </message>
    <message>
        <source>Move the selection</source>
        <translation>選択範囲を移動</translation>
    </message>
    <message>
        <source>Drag its size</source>
        <translation>大きさの表示をドラッグ</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Left by %1 pt</source>
        <translation>%1 pt 左へ</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>行番号</translation>
    </message>
    <message>
        <source>Lower by %1 pt</source>
        <translation>%1 pt 低く</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>一致</translation>
    </message>
    <message>
        <source>Move Selection</source>
        <translation>選択範囲を移動</translation>
    </message>
    <message>
        <source>Narrower by %1 pt</source>
        <translation>%1 pt 狭く</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>No recent files</source>
        <translation>最近使ったファイルはありません</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>このページにはありません</translation>
    </message>
    <message>
        <source>Not possible for this picture: %1</source>
        <translation>この画像ではできません：%1</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>何も選択されていません。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Only files on this computer can be opened.</source>
        <translation>開けるのはこのコンピュータ上のファイルだけです。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダを開く</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>最近使ったファイルを開く</translation>
    </message>
    <message>
        <source>Opening was stopped</source>
        <translation>読み込みを中止しました</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>開いています…</translation>
    </message>
    <message>
        <source>Opens EPS, Illustrator, PDF and SVG pictures and hands any part of them on as vectors.</source>
        <translation>EPS、Illustrator、PDF、SVG の画像を開き、そのどの部分でもベクターのまま渡します。</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開く…</translation>
    </message>
    <message>
        <source>OrderfrontColorWell</source>
        <translation>カラーパネルを表示</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>PDF 書類</translation>
    </message>
    <message>
        <source>PNG image</source>
        <translation>PNG 画像</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Pictures that you open are listed here.</source>
        <translation>開いた画像がここに並びます。</translation>
    </message>
    <message>
        <source>Please retry with other format.</source>
        <translation>別のフォーマットでもう一度お試しください。</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>プリント…</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近使った項目</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>最近使ったファイル</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>リストから取り除く</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>Resize Selection</source>
        <translation>選択範囲の大きさを変更</translation>
    </message>
    <message>
        <source>Right by %1 pt</source>
        <translation>%1 pt 右へ</translation>
    </message>
    <message>
        <source>RotateImageByMousedragg</source>
        <translation>ドラッグすると画像を回転します。Shift キーを押すと 15° ごとに止まり、ダブルクリックで 0° に戻ります。</translation>
    </message>
    <message>
        <source>SVG image</source>
        <translation>SVG 画像</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>別名で保存</translation>
    </message>
    <message>
        <source>Save Selection</source>
        <translation>選択範囲を保存</translation>
    </message>
    <message>
        <source>Save To</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>SaveAs</source>
        <translation>別名で保存…</translation>
    </message>
    <message>
        <source>SaveTo</source>
        <translation>書き出し…</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>左右にスクロール</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>上下にスクロール</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべてを選択</translation>
    </message>
    <message>
        <source>Selected from %1, %2 to %3, %4: %5 by %6 points.</source>
        <translation>%1, %2 から %3, %4 まで選択：%5 × %6 ポイント。</translation>
    </message>
    <message>
        <source>Selected range of image data is written or displayed.</source>
        <translation>選択範囲、または見えている範囲をファイルに書き出します。</translation>
    </message>
    <message>
        <source>SelectedRectangle</source>
        <translation>選択した矩形の角</translation>
    </message>
    <message>
        <source>Selection is determined by dragging the mouse twice.</source>
        <translation>1 回目のドラッグで始点を置き、2 回目のドラッグで矩形を広げます。</translation>
    </message>
    <message>
        <source>SourceCode</source>
        <translation>書類のソーステキスト</translation>
    </message>
    <message>
        <source>TIFF image</source>
        <translation>TIFF 画像</translation>
    </message>
    <message>
        <source>The picture is still being printed.</source>
        <translation>画像をまだプリントしています。</translation>
    </message>
    <message>
        <source>A file is still being written.</source>
        <translation>ファイルをまだ書き込んでいます。</translation>
    </message>
    <message>
        <source>Close When Finished</source>
        <translation>終わったら閉じる</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>中止して閉じる</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>開いたままにする</translation>
    </message>
    <message>
        <source>The writing was stopped</source>
        <translation>書き込みを中止しました</translation>
    </message>
    <message>
        <source>The file was deleted or moved. What is shown was read before.</source>
        <translation>ファイルが削除または移動されました。以前に読み込んだ内容を表示しています。</translation>
    </message>
    <message>
        <source>Preparing “%1” for printing…</source>
        <translation>「%1」のプリントを準備しています…</translation>
    </message>
    <message>
        <source>“%1” exists already. Do you want to replace it?</source>
        <translation>「%1」はすでに存在します。置き換えますか？</translation>
    </message>
    <message>
        <source>The file has changed on disk.</source>
        <translation>ディスク上のファイルが変更されました。</translation>
    </message>
    <message>
        <source>The picture cannot be shown.</source>
        <translation>画像を表示できません。</translation>
    </message>
    <message>
        <source>The picture cannot be written in this format</source>
        <translation>画像をこのフォーマットで書き込めません</translation>
    </message>
    <message>
        <source>The picture could not be copied. The clipboard holds what it held before.</source>
        <translation>画像をコピーできませんでした。クリップボードの内容は以前のままです。</translation>
    </message>
    <message>
        <source>The range of the selection or visible rect are copied onto the paste board.</source>
        <translation>選択範囲、または見えている範囲をクリップボードにコピーします。</translation>
    </message>
    <message>
        <source>The range of the selection or visible rect are printed.</source>
        <translation>選択範囲、または見えている範囲をプリントします。</translation>
    </message>
    <message>
        <source>The selection starts at %1, %2.</source>
        <translation>選択範囲の始点は %1, %2 です。</translation>
    </message>
    <message>
        <source>There is not enough memory for this</source>
        <translation>このためのメモリが足りません</translation>
    </message>
    <message>
        <source>This could not be done.</source>
        <translation>実行できませんでした。</translation>
    </message>
    <message>
        <source>This is not an EPS, Illustrator, PDF or SVG picture.</source>
        <translation>EPS、Illustrator、PDF、SVG の画像ではありません。</translation>
    </message>
    <message>
        <source>The file's name is not text in UTF-8. Please rename the file.</source>
        <translation>ファイル名が UTF-8 のテキストではありません。ファイル名を変更してください。</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>タイトル:</translation>
    </message>
    <message>
        <source>Touch Bar</source>
        <translation>Touch Bar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>もう一度試す</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>名称未設定</translation>
    </message>
    <message>
        <source>Up by %1 pt</source>
        <translation>%1 pt 上へ</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>ViewBox</source>
        <translation>画像の viewBox または範囲（画像自身の単位）</translation>
    </message>
    <message>
        <source>What it holds will be lost.</source>
        <translation>元の内容は失われます。</translation>
    </message>
    <message>
        <source>Wider by %1 pt</source>
        <translation>%1 pt 広く</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>書き込んでいます…</translation>
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
        <translation>ズーム</translation>
    </message>
    <message>
        <source>or drop pictures here</source>
        <translation>または画像をここにドロップ</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>「%1」を開けませんでした。</translation>
    </message>
    <message>
        <source>%1 files could not be opened.</source>
        <translation>%1 個のファイルを開けませんでした。</translation>
    </message>
    <message>
        <source>“%1” exists already.</source>
        <translation>「%1」はすでに存在します。</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>すべて(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>下(&amp;B):</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>部数(&amp;C):</translation>
    </message>
    <message>
        <source>&amp;Fit on one page</source>
        <translation>1 ページに収める(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation>横(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>プリント(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>プリント(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>右(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Scaling:</source>
        <translation>拡大縮小(&amp;S):</translation>
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
        <translation>最初のページ</translation>
    </message>
    <message>
        <source>Fro&amp;m</source>
        <translation>開始(&amp;M)</translation>
    </message>
    <message>
        <source>Hea&amp;der and footer</source>
        <translation>ヘッダとフッタ(&amp;D)</translation>
    </message>
    <message>
        <source>Centred:</source>
        <translation>中央揃え:</translation>
    </message>
    <message>
        <source>Centred horizontally</source>
        <translation>水平方向に中央揃え</translation>
    </message>
    <message>
        <source>Centred vertically</source>
        <translation>垂直方向に中央揃え</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後のページ</translation>
    </message>
    <message>
        <source>Lef&amp;t:</source>
        <translation>左(&amp;T):</translation>
    </message>
    <message>
        <source>This printer is no longer there.</source>
        <translation>このプリンタはもうありません。</translation>
    </message>
    <message>
        <source>Print Selected or Visible Pa&amp;rt…</source>
        <translation>選択または表示部分をプリント(&amp;T)…</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>プリンタを探しています…</translation>
    </message>
    <message>
        <source>Makes the picture smaller until one page holds it</source>
        <translation>1 ページに収まるまで画像を縮小します</translation>
    </message>
    <message>
        <source>Margins:</source>
        <translation>余白:</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>方向:</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>プリンタ(&amp;R):</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1 / %2 ページ</translation>
    </message>
    <message>
        <source>Page Set&amp;up…</source>
        <translation>ページ設定(&amp;U)…</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>ページ設定</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>ページ:</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>用紙(&amp;E):</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Portra&amp;it</source>
        <translation>縦(&amp;I)</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>ページのプレビュー</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>「%1」をプリント</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンタ</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>プリント</translation>
    </message>
    <message>
        <source>Printing “%1”: page %2 of %3…</source>
        <translation>“%1”をプリントしています: %3ページ中%2ページ目…</translation>
    </message>
    <message>
        <source>Printing “%1”…</source>
        <translation>「%1」をプリントしています…</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>保存(&amp;V)…</translation>
    </message>
    <message>
        <source>Save as PDF file</source>
        <translation>PDF ファイルとして保存</translation>
    </message>
    <message>
        <source>Save the pages as PDF</source>
        <translation>ページを PDF として保存</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>拡大縮小</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>T&amp;op:</source>
        <translation>上(&amp;O):</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>ジョブを受け付けません</translation>
    </message>
    <message>
        <source>The date above the picture and the file's location below it, on every page</source>
        <translation>各ページの画像の上に日付、下にファイルの場所を入れます</translation>
    </message>
    <message>
        <source>The margins leave no room on the paper.</source>
        <translation>余白のために用紙に場所が残りません。</translation>
    </message>
    <message>
        <source>The pages become a PDF file.</source>
        <translation>ページは PDF ファイルになります。</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>プリンタがありません。</translation>
    </message>
    <message>
        <source>to</source>
        <translation>〜</translation>
    </message>
    <message>
        <source>“%1” was not printed.</source>
        <translation>「%1」はプリントされませんでした。</translation>
    </message>
    <message>
        <source>With the mouse</source>
        <translation>マウス操作</translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation>コマンドとキーを検索</translation>
    </message>
    <message>
        <source>Is the preview added the occasion where it writes out?</source>
        <translation>EPS を描画できないプログラムのために、ファイルにプレビューを付けますか？</translation>
    </message>
    <message>
        <source>With preview</source>
        <translation>プレビュー付き</translation>
    </message>
    <message>
        <source>The new file would hold less than the picture does.</source>
        <translation>新しいファイルに入る内容は画像より少なくなります。</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. The interpreter of PostScript is under the GNU Affero General Public License, version 3 or later.</source>
        <translation>GNU 一般公衆利用許諾書バージョン 3 以降によるフリーソフトウェアです。PostScript インタプリタは GNU アフェロ一般公衆利用許諾書バージョン 3 以降によります。</translation>
    </message>
    <message>
        <source>The drawing was stopped</source>
        <translation>描画を中止しました</translation>
    </message>
    <message>
        <source>Norvex ended unexpectedly the last time.</source>
        <translation>前回 Norvex は予期せず終了しました。</translation>
    </message>
    <message>
        <source>“%1” was open then, and may be the reason.</source>
        <translation>そのとき「%1」が開いていました。これが原因かもしれません。</translation>
    </message>
    <message>
        <source>Do Not Open</source>
        <translation>開かない</translation>
    </message>
    <message>
        <source>Open It Again</source>
        <translation>もう一度開く</translation>
    </message>
    <message>
        <source>%1 files were open then. “%2” was used last, and may be the reason.</source>
        <translation>そのとき %1 個のファイルが開いていました。最後に使った「%2」が原因かもしれません。</translation>
    </message>
    <message>
        <source>Open the Others</source>
        <translation>ほかのファイルを開く</translation>
    </message>
    <message>
        <source>Open All Again</source>
        <translation>すべてもう一度開く</translation>
    </message>
    <message>
        <source>Norvex Manual</source>
        <translation>Norvex マニュアル</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>履歴を消去</translation>
    </message>
    <message>
        <source>Remember Files</source>
        <translation>ファイルを記憶する</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>マニュアルを検索</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>トピック</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>マニュアルのページ</translation>
    </message>
    <message>
        <source>Place the first corner of a selection</source>
        <translation>選択範囲の最初の角を置く</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>ドラッグ</translation>
    </message>
    <message>
        <source>Draw the selection from there</source>
        <translation>そこから選択範囲を広げる</translation>
    </message>
    <message>
        <source>Drag again</source>
        <translation>もう一度ドラッグ</translation>
    </message>
    <message>
        <source>Take the selection to another program</source>
        <translation>選択範囲をほかのプログラムに渡す</translation>
    </message>
    <message>
        <source>Ctrl + Drag</source>
        <translation>Ctrl + ドラッグ</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>ポインタの位置でズーム</translation>
    </message>
    <message>
        <source>Ctrl + Wheel</source>
        <translation>Ctrl + ホイール</translation>
    </message>
    <message>
        <source>Move the picture</source>
        <translation>画像を移動</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>ホイール</translation>
    </message>
    <message>
        <source>Commands for the picture</source>
        <translation>画像のコマンド</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>右ボタン</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>フォーマット:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>%1 What is shown is what it had drawn until then.</source>
        <translation>%1 そこまでに描画した内容を表示しています。</translation>
    </message>
    <message>
        <source>How the documents that it opens are confined:</source>
        <translation>開く書類の隔離方法:</translation>
    </message>
    <message>
        <source>Read as:</source>
        <translation>読み取り方法:</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>The encoding in which comments and source text are read</source>
        <translation>コメントとソーステキストの読み取りに使うエンコーディング</translation>
    </message>
    <message>
        <source>The source is not valid in %1.</source>
        <translation>ソースは %1 として正しくありません。</translation>
    </message>
    <message>
        <source>A guess, as nothing says how the source is encoded. Read as %1:</source>
        <translation>ソースのエンコーディングを示す情報がないため、推測です。%1 として読み取った内容:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>説明:</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>What the library that reads the picture says</source>
        <translation>画像を読み取るライブラリからのメッセージ</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>元のまま</translation>
    </message>
    <message>
        <source>None preview</source>
        <translation>プレビューなし</translation>
    </message>
    <message>
        <source>WebP image</source>
        <translation>WebP 画像</translation>
    </message>
    <message>
        <source>Copied %1 pt</source>
        <translation>%1 pt をコピーしました</translation>
    </message>
    <message>
        <source>Other Folder…</source>
        <translation>ほかのフォルダ…</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>Folder for the exported file</source>
        <translation>エクスポート先のフォルダ</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>保存先：%1</translation>
    </message>
    <message>
        <source>EPS with TIFF preview</source>
        <translation>TIFF プレビュー付き EPS</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>このページ</translation>
    </message>
    <message>
        <source>Part:</source>
        <translation>範囲:</translation>
    </message>
    <message>
        <source> pixels an inch</source>
        <translation> ピクセル/インチ</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>幅（ピクセル）</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>高さ（ピクセル）</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>解像度:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>サイズ:</translation>
    </message>
    <message>
        <source>Fill with</source>
        <translation>塗りつぶす</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>背景:</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>可逆圧縮</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>画質:</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Making a preview…</source>
        <translation>プレビューを作成しています…</translation>
    </message>
    <message>
        <source>File size: %1</source>
        <translation>ファイルサイズ：%1</translation>
    </message>
    <message>
        <source>Not possible</source>
        <translation>できません</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>エクスポート(&amp;X)…</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>画像が大きすぎます。</translation>
    </message>
    <message>
        <source>Exported “%1”</source>
        <translation>「%1」をエクスポートしました</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>選択範囲</translation>
    </message>
    <message>
        <source>Visible part</source>
        <translation>見えている範囲</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>画像全体</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>すべてのページ</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>ページ %1</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>/ %1</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>移動(&amp;G)</translation>
    </message>
    <message>
        <source>Page &amp;Thumbnails</source>
        <translation>ページのサムネール(&amp;T)</translation>
    </message>
    <message>
        <source>Page %1 has no area.</source>
        <translation>ページ %1 には大きさがありません。</translation>
    </message>
    <message>
        <source>Where the pointer is in the picture. Click for another unit.</source>
        <translation>画像内でのポインタの位置です。クリックすると単位が変わります。</translation>
    </message>
    <message>
        <source>Unit of lengths</source>
        <translation>長さの単位</translation>
    </message>
    <message>
        <source>&amp;Next Page</source>
        <translation>次のページ(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Page</source>
        <translation>前のページ(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;First Page</source>
        <translation>最初のページ(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Last Page</source>
        <translation>最後のページ(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Go to Page…</source>
        <translation>ページへ移動(&amp;G)…</translation>
    </message>
    <message>
        <source>&amp;Window Fits Picture</source>
        <translation>ウインドウを画像に合わせる(&amp;P)</translation>
    </message>
    <message>
        <source>Reload Changed Files b&amp;y Itself</source>
        <translation>変更されたファイルを自動的に再読み込み(&amp;Y)</translation>
    </message>
    <message>
        <source>Select Rectangle</source>
        <translation>矩形を選択</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>幅に合わせる(&amp;W)</translation>
    </message>
    <message>
        <source>Next Picture in F&amp;older</source>
        <translation>フォルダ内の次の画像(&amp;O)</translation>
    </message>
    <message>
        <source>Previous Pictu&amp;re in Folder</source>
        <translation>フォルダ内の前の画像(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo Selection</source>
        <translation>選択範囲の変更を取り消す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo Selection</source>
        <translation>選択範囲の変更をやり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Select Rectan&amp;gle…</source>
        <translation>矩形を選択(&amp;G)…</translation>
    </message>
    <message>
        <source>From the left:</source>
        <translation>左から:</translation>
    </message>
    <message>
        <source>From below:</source>
        <translation>下から:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>幅:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高さ:</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>画質</translation>
    </message>
    <message>
        <source>Still working: wait, or stop and show what there is.</source>
        <translation>まだ処理中です。このまま待つか、中止してそこまでの内容を表示できます。</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>待つ</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>検査</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>再検査</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>検査中…</translation>
    </message>
    <message>
        <source>What the picture is for</source>
        <translation>画像の用途</translation>
    </message>
    <message>
        <source>For Any Use</source>
        <translation>すべての用途</translation>
    </message>
    <message>
        <source>For Print</source>
        <translation>印刷用</translation>
    </message>
    <message>
        <source>For a Journal</source>
        <translation>論文誌用</translation>
    </message>
    <message>
        <source>For the Web</source>
        <translation>Web 用</translation>
    </message>
    <message>
        <source>For an Archive</source>
        <translation>アーカイブ用</translation>
    </message>
    <message>
        <source>From a File…</source>
        <translation>ファイルから…</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>検出項目</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>問題は見つかりませんでした。</translation>
    </message>
    <message>
        <source>%1 more are not shown.</source>
        <translation>ほか %1 件は表示していません。</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>修復…</translation>
    </message>
    <message>
        <source>Repair All…</source>
        <translation>すべて修復…</translation>
    </message>
    <message>
        <source>Writes a mended copy of the file</source>
        <translation>修復したコピーを書き出します</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>注記</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>エラー 1 件</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>エラー %1 件</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>警告 1 件</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>警告 %1 件</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>注記 1 件</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>注記 %1 件</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>%1 行目</translation>
    </message>
    <message>
        <source>at %1, %2 pt</source>
        <translation>%1, %2 pt の位置</translation>
    </message>
    <message>
        <source>The check was stopped.</source>
        <translation>検査は中止されました。</translation>
    </message>
    <message>
        <source>The file has changed while it was checked.</source>
        <translation>検査中にファイルが変更されました。</translation>
    </message>
    <message>
        <source>There is no file to check.</source>
        <translation>検査するファイルがありません。</translation>
    </message>
    <message>
        <source>Not everything could be checked. %1</source>
        <translation>すべてを検査できませんでした。%1</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Profiles (*.toml)</source>
        <translation>プロファイル (*.toml)</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修復</translation>
    </message>
    <message>
        <source>A mended copy of the file is written. What it draws stays the same.</source>
        <translation>修復したコピーを書き出します。描かれる内容は変わりません。</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>プレビュー:</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>そのまま</translation>
    </message>
    <message>
        <source>Made anew</source>
        <translation>作り直す</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>省く</translation>
    </message>
    <message>
        <source>Repairing…</source>
        <translation>修復中…</translation>
    </message>
    <message>
        <source>Nothing had to be changed.</source>
        <translation>変更は必要ありませんでした。</translation>
    </message>
    <message>
        <source>This stays as it is:</source>
        <translation>次はそのままです:</translation>
    </message>
    <message>
        <source>“%1” is written.</source>
        <translation>「%1」を書き出しました。</translation>
    </message>
    <message>
        <source>Open It</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Inspector in t&amp;he Window</source>
        <translation>インスペクタをウインドウ内に表示(&amp;H)</translation>
    </message>
    <message>
        <source>Go to Inspector or Pi&amp;cture</source>
        <translation>インスペクタと画像を切り替え(&amp;C)</translation>
    </message>
    <message>
        <source>The program lies in a wrapping of another system</source>
        <translation>プログラムがほかのシステムの形式で包まれています。</translation>
    </message>
    <message>
        <source>A section of the binary header lies outside the file</source>
        <translation>バイナリヘッダの区画がファイルの外にあります。</translation>
    </message>
    <message>
        <source>Sections of the binary header overlap</source>
        <translation>バイナリヘッダの区画が重なっています。</translation>
    </message>
    <message>
        <source>Bytes before the first line</source>
        <translation>最初の行の前に余分なバイトがあります。</translation>
    </message>
    <message>
        <source>Bytes behind the program's end</source>
        <translation>プログラムの終わりの後に余分なバイトがあります。</translation>
    </message>
    <message>
        <source>The file is cut off</source>
        <translation>ファイルが途中で切れています。</translation>
    </message>
    <message>
        <source>The first line is not that of a PostScript file</source>
        <translation>最初の行が PostScript ファイルのものではありません。</translation>
    </message>
    <message>
        <source>The first line does not declare EPSF</source>
        <translation>最初の行が EPSF を宣言していません。</translation>
    </message>
    <message>
        <source>The first line declares a version that does not exist</source>
        <translation>最初の行が存在しないバージョンを宣言しています。</translation>
    </message>
    <message>
        <source>There is no %%BoundingBox</source>
        <translation>%%BoundingBox がありません。</translation>
    </message>
    <message>
        <source>%%BoundingBox: (atend) without a box at the end</source>
        <translation>%%BoundingBox: (atend) とありますが、終わりに値がありません。</translation>
    </message>
    <message>
        <source>%%BoundingBox does not hold four numbers</source>
        <translation>%%BoundingBox に 4 つの数値がありません。</translation>
    </message>
    <message>
        <source>The bounding box is empty</source>
        <translation>バウンディングボックスが空です。</translation>
    </message>
    <message>
        <source>%%BoundingBox holds numbers that are not whole</source>
        <translation>%%BoundingBox に整数でない値があります。</translation>
    </message>
    <message>
        <source>%%BoundingBox does not enclose %%HiResBoundingBox, or is far larger</source>
        <translation>%%BoundingBox が %%HiResBoundingBox を囲んでいないか、はるかに大きい値です。</translation>
    </message>
    <message>
        <source>Ink lies outside the bounding box</source>
        <translation>バウンディングボックスの外に描画があります。</translation>
    </message>
    <message>
        <source>The bounding box is larger than the ink</source>
        <translation>バウンディングボックスが描画より大きくなっています。</translation>
    </message>
    <message>
        <source>The program draws nothing that is not white</source>
        <translation>プログラムは白以外の何も描きません。</translation>
    </message>
    <message>
        <source>The program stops with a PostScript error</source>
        <translation>プログラムが PostScript エラーで止まります。</translation>
    </message>
    <message>
        <source>The interpreter had something to remark</source>
        <translation>インタプリタからの注記があります。</translation>
    </message>
    <message>
        <source>showpage is missing</source>
        <translation>showpage がありません。</translation>
    </message>
    <message>
        <source>An operator that has no place in an EPS file</source>
        <translation>EPS ファイルで使ってはならない演算子があります。</translation>
    </message>
    <message>
        <source>Operators of a higher language level than the comments declare</source>
        <translation>コメントの宣言より高い言語レベルの演算子があります。</translation>
    </message>
    <message>
        <source>%%EndComments is missing</source>
        <translation>%%EndComments がありません。</translation>
    </message>
    <message>
        <source>Comments stand in the wrong order</source>
        <translation>コメントの順序が正しくありません。</translation>
    </message>
    <message>
        <source>A section begins and does not end, or the other way round</source>
        <translation>区画の始まりと終わりが対応していません。</translation>
    </message>
    <message>
        <source>Lines of more than 255 bytes</source>
        <translation>255 バイトを超える行があります。</translation>
    </message>
    <message>
        <source>Lines end in different ways</source>
        <translation>行末の形式が混在しています。</translation>
    </message>
    <message>
        <source>Other bytes than %%DocumentData declares</source>
        <translation>%%DocumentData の宣言と異なるバイトがあります。</translation>
    </message>
    <message>
        <source>The file needs fonts that it does not bring</source>
        <translation>ファイルに含まれないフォントが必要です。</translation>
    </message>
    <message>
        <source>There is no preview</source>
        <translation>プレビューがありません。</translation>
    </message>
    <message>
        <source>The preview cannot be read</source>
        <translation>プレビューを読めません。</translation>
    </message>
    <message>
        <source>The preview shows another picture than the program draws</source>
        <translation>プレビューがプログラムの描く画像と異なります。</translation>
    </message>
    <message>
        <source>The preview has another shape than the bounding box</source>
        <translation>プレビューの縦横比がバウンディングボックスと異なります。</translation>
    </message>
    <message>
        <source>A font is neither in the file nor on this machine</source>
        <translation>ファイルにもこのコンピュータにもないフォントがあります。</translation>
    </message>
    <message>
        <source>A font is not embedded</source>
        <translation>埋め込まれていないフォントがあります。</translation>
    </message>
    <message>
        <source>A font is embedded as a whole</source>
        <translation>フォント全体が埋め込まれています。</translation>
    </message>
    <message>
        <source>A Type 3 font</source>
        <translation>Type 3 フォントがあります。</translation>
    </message>
    <message>
        <source>Text smaller than the profile allows</source>
        <translation>プロファイルの許容より小さい文字があります。</translation>
    </message>
    <message>
        <source>A colour space that the profile does not name</source>
        <translation>プロファイルに挙げられていないカラースペースがあります。</translation>
    </message>
    <message>
        <source>RGB colours where the profile wants none</source>
        <translation>プロファイルが認めない RGB カラーがあります。</translation>
    </message>
    <message>
        <source>RGB in a CMYK picture</source>
        <translation>CMYK 画像に RGB があります。</translation>
    </message>
    <message>
        <source>Spot inks</source>
        <translation>特色があります。</translation>
    </message>
    <message>
        <source>More ink in one place than the profile allows</source>
        <translation>プロファイルの許容よりインキ総量が多い箇所があります。</translation>
    </message>
    <message>
        <source>White that overprints vanishes</source>
        <translation>オーバープリントの白は消えます。</translation>
    </message>
    <message>
        <source>Black text that does not overprint</source>
        <translation>オーバープリントしない黒い文字があります。</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>透明効果があります。</translation>
    </message>
    <message>
        <source>Lines thinner than the profile allows</source>
        <translation>プロファイルの許容より細い線があります。</translation>
    </message>
    <message>
        <source>An image has fewer pixels an inch than the profile asks for</source>
        <translation>プロファイルの求める解像度に満たない画像があります。</translation>
    </message>
    <message>
        <source>Something is drawn outside the page's box</source>
        <translation>ページの枠の外に描画があります。</translation>
    </message>
    <message>
        <source>The picture fits no column of the profile</source>
        <translation>画像がプロファイルのどの段幅にも合いません。</translation>
    </message>
    <message>
        <source>A part of the page was not looked at</source>
        <translation>ページの一部は調べていません。</translation>
    </message>
    <message>
        <source>The file is damaged</source>
        <translation>ファイルが壊れています。</translation>
    </message>
    <message>
        <source>The document is encrypted</source>
        <translation>書類は暗号化されています。</translation>
    </message>
    <message>
        <source>Its permissions forbid printing or changing it</source>
        <translation>プリントまたは変更が許可されていません。</translation>
    </message>
    <message>
        <source>It claims to keep a standard</source>
        <translation>規格に準拠すると宣言しています。</translation>
    </message>
    <message>
        <source>It claims PDF/X or PDF/A and has no output intent</source>
        <translation>PDF/X または PDF/A を宣言していますが、出力インテントがありません。</translation>
    </message>
    <message>
        <source>It needs other files, which are never loaded</source>
        <translation>ほかのファイルが必要ですが、それらは読み込まれません。</translation>
    </message>
    <message>
        <source>Filters become images in print</source>
        <translation>フィルタは印刷時に画像になります。</translation>
    </message>
    <message>
        <source>The size has no unit, or there is none</source>
        <translation>サイズに単位がないか、サイズがありません。</translation>
    </message>
    <message>
        <source>Scripts and animations are not run</source>
        <translation>スクリプトとアニメーションは実行されません。</translation>
    </message>
    <message>
        <source>repair takes the program out</source>
        <translation>修復でプログラムを取り出します。</translation>
    </message>
    <message>
        <source>repair writes the header anew</source>
        <translation>修復でヘッダを書き直します。</translation>
    </message>
    <message>
        <source>repair leaves them out</source>
        <translation>修復で取り除きます。</translation>
    </message>
    <message>
        <source>fetch the file again</source>
        <translation>ファイルを入手し直してください。</translation>
    </message>
    <message>
        <source>repair writes it</source>
        <translation>修復で書き込みます。</translation>
    </message>
    <message>
        <source>repair writes the versions 3.0</source>
        <translation>修復でバージョン 3.0 を書き込みます。</translation>
    </message>
    <message>
        <source>repair computes it</source>
        <translation>修復で計算します。</translation>
    </message>
    <message>
        <source>repair writes whole numbers</source>
        <translation>修復で整数を書き込みます。</translation>
    </message>
    <message>
        <source>repair computes both</source>
        <translation>修復で両方を計算します。</translation>
    </message>
    <message>
        <source>write the file again from the program that made it</source>
        <translation>作成したプログラムからファイルを書き出し直してください。</translation>
    </message>
    <message>
        <source>repair puts it in</source>
        <translation>修復で追加します。</translation>
    </message>
    <message>
        <source>write the file again as EPS</source>
        <translation>EPS として書き出し直してください。</translation>
    </message>
    <message>
        <source>add %%LanguageLevel to the header</source>
        <translation>ヘッダに %%LanguageLevel を加えてください。</translation>
    </message>
    <message>
        <source>repair puts those of the header in order</source>
        <translation>修復でヘッダのコメントを並べ直します。</translation>
    </message>
    <message>
        <source>most readers take them</source>
        <translation>多くのリーダーは受け付けます。</translation>
    </message>
    <message>
        <source>declare %%DocumentData: Binary</source>
        <translation>%%DocumentData: Binary を宣言してください。</translation>
    </message>
    <message>
        <source>embed the fonts, or draw text as outlines</source>
        <translation>フォントを埋め込むか、文字をアウトライン化してください。</translation>
    </message>
    <message>
        <source>repair makes one</source>
        <translation>修復で作成します。</translation>
    </message>
    <message>
        <source>embed the font</source>
        <translation>フォントを埋め込んでください。</translation>
    </message>
    <message>
        <source>use a font with outlines</source>
        <translation>アウトラインフォントを使ってください。</translation>
    </message>
    <message>
        <source>set the text larger</source>
        <translation>文字を大きくしてください。</translation>
    </message>
    <message>
        <source>convert the colours</source>
        <translation>色を変換してください。</translation>
    </message>
    <message>
        <source>choose colours with less ink</source>
        <translation>インキ量の少ない色を選んでください。</translation>
    </message>
    <message>
        <source>let it knock out</source>
        <translation>抜き合わせにしてください。</translation>
    </message>
    <message>
        <source>let black text overprint</source>
        <translation>黒い文字をオーバープリントにしてください。</translation>
    </message>
    <message>
        <source>flatten it where the printer asks for it</source>
        <translation>印刷所が求める場合は分割・統合してください。</translation>
    </message>
    <message>
        <source>draw them thicker</source>
        <translation>線を太くしてください。</translation>
    </message>
    <message>
        <source>place it smaller, or with more pixels</source>
        <translation>小さく配置するか、画素数を増やしてください。</translation>
    </message>
    <message>
        <source>enlarge the box, or leave it out</source>
        <translation>枠を広げるか、取り除いてください。</translation>
    </message>
    <message>
        <source>draw it for the column's width</source>
        <translation>段幅に合わせて描いてください。</translation>
    </message>
    <message>
        <source>convert it to PDF, and look whether anything is missing</source>
        <translation>PDF に変換し、欠けがないか確かめてください。</translation>
    </message>
    <message>
        <source>write it without encryption</source>
        <translation>暗号化せずに書き出してください。</translation>
    </message>
    <message>
        <source>write it without restrictions</source>
        <translation>制限なしで書き出してください。</translation>
    </message>
    <message>
        <source>add the output intent</source>
        <translation>出力インテントを加えてください。</translation>
    </message>
    <message>
        <source>embed them</source>
        <translation>埋め込んでください。</translation>
    </message>
    <message>
        <source>draw the effect, or accept an image</source>
        <translation>効果を描くか、画像になることを受け入れてください。</translation>
    </message>
    <message>
        <source>give width and height in mm, pt or in</source>
        <translation>幅と高さを mm、pt、in で指定してください。</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>パスワードが正しくありません。</translation>
    </message>
    <message>
        <source>The document is protected by a password.</source>
        <translation>この書類はパスワードで保護されています。</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>La&amp;yers</source>
        <translation>レイヤー(&amp;Y)</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>レイヤー %1</translation>
    </message>
    <message>
        <source>The document locks this layer.</source>
        <translation>このレイヤーは書類によってロックされています。</translation>
    </message>
    <message>
        <source>Find in P&amp;icture…</source>
        <translation>画像内を検索(&amp;I)…</translation>
    </message>
    <message>
        <source>The text of the picture cannot be read.</source>
        <translation>画像のテキストを読み取れません。</translation>
    </message>
    <message>
        <source>Select &amp;Text</source>
        <translation>テキストを選択(&amp;T)</translation>
    </message>
    <message>
        <source>Copy Te&amp;xt</source>
        <translation>テキストをコピー(&amp;X)</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>テキストをコピーしました</translation>
    </message>
    <message>
        <source>Links of this kind are not followed.</source>
        <translation>この種類のリンクは開きません。</translation>
    </message>
    <message>
        <source>No program here opens this address.</source>
        <translation>このアドレスを開くプログラムがありません。</translation>
    </message>
    <message>
        <source>The picture links to this address. Open it?</source>
        <translation>画像はこのアドレスにリンクしています。開きますか？</translation>
    </message>
    <message>
        <source>Open Address</source>
        <translation>アドレスを開く</translation>
    </message>
    <message>
        <source>Inks</source>
        <translation>インキ</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>インキ</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>面積率</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>ここ</translation>
    </message>
    <message>
        <source>Only This Ink</source>
        <translation>このインキのみ</translation>
    </message>
    <message>
        <source>All Inks</source>
        <translation>すべてのインキ</translation>
    </message>
    <message>
        <source>Inks as grey plates</source>
        <translation>インキをグレーの版で表示</translation>
    </message>
    <message>
        <source>The picture is separated into plates: %1</source>
        <translation>画像は版に分かれています：%1</translation>
    </message>
    <message>
        <source>Windows metafile, %1</source>
        <translation>Windows メタファイル、%1</translation>
    </message>
    <message>
        <source>Keep text as text, with its fonts</source>
        <translation>テキストをフォント付きのテキストのまま保つ</translation>
    </message>
    <message>
        <source>Show the inks in the picture</source>
        <translation>インキを画像に表示</translation>
    </message>
    <message>
        <source>Simulate overprinting</source>
        <translation>オーバープリントをシミュレート</translation>
    </message>
    <message>
        <source>Mark ink above</source>
        <translation>次の値を超えるインキを示す</translation>
    </message>
    <message>
        <source>Limit of all inks together</source>
        <translation>全インキ合計の上限</translation>
    </message>
    <message>
        <source>The page as its inks print it</source>
        <translation>インキで印刷されたページ</translation>
    </message>
    <message>
        <source>Most ink in one place: %1</source>
        <translation>1 か所の最大インキ量：%1</translation>
    </message>
    <message>
        <source>All inks under the pointer: %1</source>
        <translation>ポインタの下の全インキ：%1</translation>
    </message>
    <message>
        <source>The page is being separated into its inks…</source>
        <translation>ページをインキごとに分版しています…</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>画像がありません。</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>The shown page (%1)</source>
        <translation>表示中のページ（%1）</translation>
    </message>
    <message>
        <source>All %1 pages</source>
        <translation>全 %1 ページ</translation>
    </message>
    <message>
        <source>Some pages</source>
        <translation>ページを指定</translation>
    </message>
    <message>
        <source>From page</source>
        <translation>開始ページ</translation>
    </message>
    <message>
        <source>From page:</source>
        <translation>開始ページ:</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>ページ(&amp;G):</translation>
    </message>
    <message>
        <source>Sheets:</source>
        <translation>シート:</translation>
    </message>
    <message>
        <source>New keys</source>
        <translation>新しいキー</translation>
    </message>
    <message>
        <source>&amp;Remove Keys</source>
        <translation>キーを外す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Default Keys</source>
        <translation>既定のキー(&amp;D)</translation>
    </message>
    <message>
        <source>All De&amp;faults</source>
        <translation>すべて既定に戻す(&amp;F)</translation>
    </message>
    <message>
        <source>Keys of “%1”:</source>
        <translation>「%1」のキー:</translation>
    </message>
    <message>
        <source>Choose a command, and then press the keys that it shall have.</source>
        <translation>コマンドを選び、割り当てるキーを押してください。</translation>
    </message>
    <message>
        <source>“%1” is for typing and for moving the picture. Take it together with Ctrl or Alt, or take a function key.</source>
        <translation>「%1」は入力と画像の移動に使います。Ctrl か Alt と組み合わせるか、ファンクションキーを使ってください。</translation>
    </message>
    <message>
        <source>“%1” cannot be written, and nothing was changed.</source>
        <translation>「%1」に書き込めません。変更しませんでした。</translation>
    </message>
    <message>
        <source>“%1” belongs to “%2” already, and nothing was changed.</source>
        <translation>「%1」は既に「%2」に割り当てられています。変更しませんでした。</translation>
    </message>
    <message>
        <source>“%1” opens the menu “%2”, and nothing was changed.</source>
        <translation>「%1」はメニュー「%2」を開くキーです。変更しませんでした。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>イエロー</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>ブラック</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Facts about the picture</source>
        <translation>画像の情報</translation>
    </message>
    <message>
        <source>&amp;About Norvex</source>
        <translation>Norvex について(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>実際のサイズ(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Deselect</source>
        <translation>選択を解除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>検索(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>ウインドウに合わせる(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>再読み込み(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Angle of rotation</source>
        <translation>回転角</translation>
    </message>
    <message>
        <source>Angle of rotation in degrees, minutes and seconds</source>
        <translation>回転角（度・分・秒）</translation>
    </message>
    <message>
        <source>AngleOfRotation</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Background colour</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>BackgroundColor</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Bounds</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>ColorSpaceName:</source>
        <translation>カラースペース:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copyright:</source>
        <translation>著作権:</translation>
    </message>
    <message>
        <source>CreationDate:</source>
        <translation>作成日時:</translation>
    </message>
    <message>
        <source>Creator:</source>
        <translation>作成アプリケーション:</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>何も選択されていません。</translation>
    </message>
    <message>
        <source>Encoding:</source>
        <translation>エンコーディング:</translation>
    </message>
    <message>
        <source>End of the selection</source>
        <translation>選択範囲の終点</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>フルスクリーン(&amp;U)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>For:</source>
        <translation>依頼者:</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>フォーマット</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>インスペクタ</translation>
    </message>
    <message>
        <source>Kind of preview</source>
        <translation>プレビューの種類</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Picture rectangle</source>
        <translation>画像の矩形</translation>
    </message>
    <message>
        <source>Picture to be written</source>
        <translation>書き込む画像</translation>
    </message>
    <message>
        <source>Picture with zoom and scroll bars</source>
        <translation>ズームとスクロールバーのある画像</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>プリント</translation>
    </message>
    <message>
        <source>Reset Rotatio&amp;n</source>
        <translation>回転をリセット(&amp;N)</translation>
    </message>
    <message>
        <source>Rotate &amp;Left</source>
        <translation>左に回転(&amp;L)</translation>
    </message>
    <message>
        <source>Rotate &amp;Right</source>
        <translation>右に回転(&amp;R)</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>SaveTo</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべてを選択(&amp;A)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>ソーステキスト</translation>
    </message>
    <message>
        <source>Start of the selection</source>
        <translation>選択範囲の始点</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>タイトル:</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>別名で保存(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Copy Whole Picture</source>
        <translation>画像全体をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>フォーマット:</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>次を検索(&amp;N)</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>前を検索(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Touch Bar</source>
        <translation>Touch Bar(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>キーボードショートカット(&amp;K)</translation>
    </message>
    <message>
        <source>What was noticed</source>
        <translation>気付いた点</translation>
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
        <translation>フォント:</translation>
    </message>
    <message>
        <source>Colors used:</source>
        <translation>使用している色:</translation>
    </message>
    <message>
        <source>Encoding of the source</source>
        <translation>ソースのエンコーディング</translation>
    </message>
    <message>
        <source>About the encoding</source>
        <translation>エンコーディングについて</translation>
    </message>
    <message>
        <source>What the source seems to say</source>
        <translation>ソースから推測した情報</translation>
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
        <translation>ファイルは空です。</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>ファイルが %1 MiB を超えています。</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>これはフォルダです。</translation>
    </message>
    <message>
        <source>it is a pipe, not an ordinary file</source>
        <translation>通常のファイルではなく、パイプです。</translation>
    </message>
    <message>
        <source>it is a socket, not an ordinary file</source>
        <translation>通常のファイルではなく、ソケットです。</translation>
    </message>
    <message>
        <source>it is a device, not an ordinary file</source>
        <translation>通常のファイルではなく、デバイスです。</translation>
    </message>
    <message>
        <source>it is being changed by another program</source>
        <translation>ほかのプログラムがファイルを変更しています。</translation>
    </message>
    <message>
        <source>only local files can be opened</source>
        <translation>開けるのはローカルのファイルだけです。</translation>
    </message>
    <message>
        <source>this type of document cannot be shown</source>
        <translation>この種類の書類は表示できません。</translation>
    </message>
    <message>
        <source>this is not an EPS, Illustrator, PDF or SVG picture</source>
        <translation>EPS、Illustrator、PDF、SVG の画像ではありません。</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript</source>
        <translation>Encapsulated PostScript ではありません。</translation>
    </message>
    <message>
        <source>the PostScript header states no usable bounding box</source>
        <translation>PostScript のヘッダに使えるバウンディングボックスがありません。</translation>
    </message>
    <message>
        <source>the PostScript has no usable bounding box</source>
        <translation>PostScript に使えるバウンディングボックスがありません。</translation>
    </message>
    <message>
        <source>the file holds no PostScript</source>
        <translation>ファイルに PostScript がありません。</translation>
    </message>
    <message>
        <source>the picture has no area to be drawn</source>
        <translation>画像に描画できる範囲がありません。</translation>
    </message>
    <message>
        <source>the SVG document has no area</source>
        <translation>SVG 書類に大きさがありません。</translation>
    </message>
    <message>
        <source>the picture is empty: its width or height is zero</source>
        <translation>画像は空です（幅または高さが 0）。</translation>
    </message>
    <message>
        <source>the file is cut off: %1 of the %2 bytes of %3 are missing</source>
        <translation>ファイルが途中で切れています：%2 バイト中 %1 バイトが足りません（%3）。</translation>
    </message>
    <message>
        <source>the file seems cut off: its PostScript stops before its end</source>
        <translation>ファイルが途中で切れているようです。PostScript が終わりまでありません。</translation>
    </message>
    <message>
        <source>the file is damaged; it was repaired as far as possible</source>
        <translation>ファイルが壊れています。できる範囲で修復しました。</translation>
    </message>
    <message>
        <source>the file is damaged; nothing of %1 can be read</source>
        <translation>ファイルが壊れていて、読める部分がありません（%1）。</translation>
    </message>
    <message>
        <source>the file is damaged; nothing of page %1 can be read</source>
        <translation>ファイルが壊れています。ページ %1 からは何も読めません。</translation>
    </message>
    <message>
        <source>the document is damaged and cannot be read as PDF</source>
        <translation>書類が壊れていて、PDF として読めません。</translation>
    </message>
    <message>
        <source>the document is not a readable PDF</source>
        <translation>読める PDF ではありません。</translation>
    </message>
    <message>
        <source>the document is protected with a password</source>
        <translation>書類はパスワードで保護されています。</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>パスワードが正しくありません。</translation>
    </message>
    <message>
        <source>the document uses an encryption that is not supported</source>
        <translation>対応していない方式で暗号化された書類です。</translation>
    </message>
    <message>
        <source>the document has no pages</source>
        <translation>書類にページがありません。</translation>
    </message>
    <message>
        <source>the document has more than %1 pages</source>
        <translation>書類のページ数が %1 を超えています。</translation>
    </message>
    <message>
        <source>there is no page %1; the document has %2</source>
        <translation>ページ %1 はありません。書類は全 %2 ページです。</translation>
    </message>
    <message>
        <source>there is no page %1, the document has %2</source>
        <translation>ページ %1 はありません。書類は全 %2 ページです。</translation>
    </message>
    <message>
        <source>page %1 is too far behind</source>
        <translation>ページ %1 は後ろすぎて扱えません。</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>ページ %1 には大きさがありません。</translation>
    </message>
    <message>
        <source>page %1 cannot be read</source>
        <translation>ページ %1 を読めません。</translation>
    </message>
    <message>
        <source>this Illustrator file was saved without PDF content, so it shows a notice instead of the artwork</source>
        <translation>この Illustrator ファイルは PDF を含めずに保存されたため、絵の代わりに注意書きが表示されます。</translation>
    </message>
    <message>
        <source>the document is protected by encryption, and what is made of it is not</source>
        <translation>書類は暗号化で保護されていますが、ここから作られるものは保護されません。</translation>
    </message>
    <message>
        <source>scripts of the document were left out</source>
        <translation>書類のスクリプトは省かれました。</translation>
    </message>
    <message>
        <source>the PostScript program stops with an error</source>
        <translation>PostScript プログラムがエラーで止まります。</translation>
    </message>
    <message>
        <source>the PostScript program tries to use a file, which no picture may</source>
        <translation>PostScript プログラムがファイルを使おうとしました。画像には許されていません。</translation>
    </message>
    <message>
        <source>the PostScript draws no page</source>
        <translation>PostScript がページを描きません。</translation>
    </message>
    <message>
        <source>the PostScript did not end within %1 seconds</source>
        <translation>PostScript が %1 秒以内に終わりませんでした。</translation>
    </message>
    <message>
        <source>the PostScript needs more memory than it was granted</source>
        <translation>PostScript に、許された以上のメモリが必要です。</translation>
    </message>
    <message>
        <source>the PostScript used up the time or memory that it was granted</source>
        <translation>PostScript が、許された時間またはメモリを使い切りました。</translation>
    </message>
    <message>
        <source>what follows the picture in the file was left out</source>
        <translation>ファイルの中で画像の後に続くものは省かれました。</translation>
    </message>
    <message>
        <source>there is no interpreter of PostScript</source>
        <translation>PostScript インタプリタがありません。</translation>
    </message>
    <message>
        <source>the interpreter of PostScript has ended</source>
        <translation>PostScript インタプリタが終了しました。</translation>
    </message>
    <message>
        <source>the interpreter of PostScript cannot be reached</source>
        <translation>PostScript インタプリタに接続できません。</translation>
    </message>
    <message>
        <source>Ghostscript (gs) is not installed</source>
        <translation>Ghostscript (gs) がインストールされていません。</translation>
    </message>
    <message>
        <source>Ghostscript failed on the PostScript</source>
        <translation>Ghostscript がこの PostScript を処理できませんでした。</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>書類は空です。</translation>
    </message>
    <message>
        <source>the document is not XML</source>
        <translation>書類は XML ではありません。</translation>
    </message>
    <message>
        <source>the document is XML but not SVG</source>
        <translation>書類は XML ですが SVG ではありません。</translation>
    </message>
    <message>
        <source>the document is not well-formed XML</source>
        <translation>書類は正しい形の XML ではありません。</translation>
    </message>
    <message>
        <source>the compressed data is damaged</source>
        <translation>圧縮データが壊れています。</translation>
    </message>
    <message>
        <source>the compressed data is cut off</source>
        <translation>圧縮データが途中で切れています。</translation>
    </message>
    <message>
        <source>the compressed data grows to more than %1 times its size</source>
        <translation>圧縮データを展開すると %1 倍を超える大きさになります。</translation>
    </message>
    <message>
        <source>the compressed data holds more than %1 MiB</source>
        <translation>圧縮データの中身が %1 MiB を超えています。</translation>
    </message>
    <message>
        <source>the document has more than %1 elements</source>
        <translation>書類の要素が %1 個を超えています。</translation>
    </message>
    <message>
        <source>the elements of the document nest more than %1 deep</source>
        <translation>書類の要素の入れ子が %1 段を超えています。</translation>
    </message>
    <message>
        <source>the references of the document nest more than %1 deep</source>
        <translation>書類の参照の入れ子が %1 段を超えています。</translation>
    </message>
    <message>
        <source>the glyphs of the document's fonts nest more than %1 deep</source>
        <translation>書類のフォントの字形の入れ子が %1 段を超えています。</translation>
    </message>
    <message>
        <source>the glyphs of the document's fonts show more than %1 others</source>
        <translation>書類のフォントの字形が %1 個を超える別の字形を表示しています。</translation>
    </message>
    <message>
        <source>the document uses entities more than %1 times</source>
        <translation>書類が実体参照を %1 回を超えて使っています。</translation>
    </message>
    <message>
        <source>the entities of the document expand to more than %1 MiB</source>
        <translation>書類の実体参照を展開すると %1 MiB を超えます。</translation>
    </message>
    <message>
        <source>the entities of the document refer to one another without end</source>
        <translation>書類の実体参照が互いを際限なく参照しています。</translation>
    </message>
    <message>
        <source>the picture is wider or higher than %1 points</source>
        <translation>画像の幅または高さが %1 ポイントを超えています。</translation>
    </message>
    <message>
        <source>the picture cannot be read</source>
        <translation>画像を読めません。</translation>
    </message>
    <message>
        <source>the picture holds something that cannot be drawn</source>
        <translation>画像に描画できないものが含まれています。</translation>
    </message>
    <message>
        <source>the encoding %1 is not known</source>
        <translation>エンコーディング %1 はわかりません。</translation>
    </message>
    <message>
        <source>the bytes are not text in the encoding %1</source>
        <translation>エンコーディング %1 の文字になっていません。</translation>
    </message>
    <message>
        <source>the document refers to other files, which are never loaded (references: %1)</source>
        <translation>書類がほかのファイルを参照していますが、読み込まれません（参照：%1）。</translation>
    </message>
    <message>
        <source>the document has scripts, which are never run</source>
        <translation>書類にスクリプトがありますが、実行されません。</translation>
    </message>
    <message>
        <source>the document is animated and is shown as it stands at rest</source>
        <translation>アニメーションのある書類です。止まった状態で表示しています。</translation>
    </message>
    <message>
        <source>the font %1 is missing, another stands in for it</source>
        <translation>フォント %1 がないため、別のフォントで代用しています。</translation>
    </message>
    <message>
        <source>the font %1 is missing, %2 stands in for it</source>
        <translation>フォント %1 がないため、%2 で代用しています。</translation>
    </message>
    <message>
        <source>the picture was not ready within %1 seconds</source>
        <translation>画像が %1 秒以内にできませんでした。</translation>
    </message>
    <message>
        <source>the picture was not ready within the time that it is allowed</source>
        <translation>画像が、許された時間内にできませんでした。</translation>
    </message>
    <message>
        <source>the picture needs more memory than it is allowed</source>
        <translation>画像に、許された以上のメモリが必要です。</translation>
    </message>
    <message>
        <source>the picture needs more processor time than it is allowed</source>
        <translation>画像に、許された以上の計算時間が必要です。</translation>
    </message>
    <message>
        <source>the picture needs more temporary files than it is allowed</source>
        <translation>画像に、許された以上の一時ファイルが必要です。</translation>
    </message>
    <message>
        <source>the picture nests deeper than can be drawn</source>
        <translation>画像の入れ子が深すぎて描画できません。</translation>
    </message>
    <message>
        <source>the picture is larger than the memory that it was granted</source>
        <translation>画像が、許されたメモリの大きさを超えています。</translation>
    </message>
    <message>
        <source>the picture would have more pixels than it is allowed</source>
        <translation>画像のピクセル数が、許された数を超えます。</translation>
    </message>
    <message>
        <source>the image would have a side of more than %1 pixels</source>
        <translation>画像の一辺が %1 ピクセルを超えます。</translation>
    </message>
    <message>
        <source>the image would have more than %1 megapixels</source>
        <translation>画像が %1 メガピクセルを超えます。</translation>
    </message>
    <message>
        <source>there is not enough memory for the picture</source>
        <translation>画像のためのメモリが足りません。</translation>
    </message>
    <message>
        <source>there is not enough memory for the document</source>
        <translation>書類のためのメモリが足りません。</translation>
    </message>
    <message>
        <source>there is not enough memory to draw the picture</source>
        <translation>画像を描画するためのメモリが足りません。</translation>
    </message>
    <message>
        <source>there is not enough memory to read the document</source>
        <translation>書類を読むためのメモリが足りません。</translation>
    </message>
    <message>
        <source>the picture is larger than files may become here</source>
        <translation>画像が、ここで許されたファイルの大きさを超えています。</translation>
    </message>
    <message>
        <source>too many files are open for another picture</source>
        <translation>開いているファイルが多すぎて、これ以上画像を開けません。</translation>
    </message>
    <message>
        <source>the picture process ended without an answer</source>
        <translation>画像プロセスが応答せずに終了しました。</translation>
    </message>
    <message>
        <source>the picture process did not answer in time</source>
        <translation>画像プロセスが時間内に応答しませんでした。</translation>
    </message>
    <message>
        <source>the picture process was killed by the system, which has probably run out of memory</source>
        <translation>画像プロセスがシステムに終了させられました。おそらくメモリ不足です。</translation>
    </message>
    <message>
        <source>the picture process gave an answer that cannot be true</source>
        <translation>画像プロセスの応答に、ありえない内容がありました。</translation>
    </message>
    <message>
        <source>no process for the picture could be started</source>
        <translation>画像のためのプロセスを開始できませんでした。</translation>
    </message>
    <message>
        <source>the program that reads pictures could not be started</source>
        <translation>画像を読むプログラムを開始できませんでした。</translation>
    </message>
    <message>
        <source>the program that reads pictures has ended</source>
        <translation>画像を読むプログラムが終了しました。</translation>
    </message>
    <message>
        <source>the program that reads pictures has not answered yet</source>
        <translation>画像を読むプログラムがまだ応答していません。</translation>
    </message>
    <message>
        <source>the picture process could not be confined: this system offers neither Landlock nor user namespaces with seccomp filters</source>
        <translation>画像プロセスを隔離できませんでした。このシステムには Landlock も、seccomp フィルタ付きのユーザー名前空間もありません。</translation>
    </message>
    <message>
        <source>the drawing was stopped</source>
        <translation>描画を中止しました。</translation>
    </message>
    <message>
        <source>the picture could not be processed</source>
        <translation>画像を処理できませんでした。</translation>
    </message>
    <message>
        <source>the picture cannot be drawn at this size</source>
        <translation>この大きさでは画像を描画できません。</translation>
    </message>
    <message>
        <source>the file exists already</source>
        <translation>ファイルはすでに存在します。</translation>
    </message>
    <message>
        <source>the folder to write to does not exist</source>
        <translation>書き込み先のフォルダがありません。</translation>
    </message>
    <message>
        <source>there is a folder of that name</source>
        <translation>その名前のフォルダがあります。</translation>
    </message>
    <message>
        <source>there is no space left to write to</source>
        <translation>書き込む空き容量がありません。</translation>
    </message>
    <message>
        <source>writing there is not permitted</source>
        <translation>そこに書き込む権限がありません。</translation>
    </message>
    <message>
        <source>the file could not be written (%1)</source>
        <translation>ファイルを書き込めませんでした（%1）。</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>通常のファイルではありません。</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>ファイルは読み取り専用です。</translation>
    </message>
    <message>
        <source>the rectangle is empty or out of range</source>
        <translation>矩形が空か、範囲の外です。</translation>
    </message>
    <message>
        <source>no profile of a press is installed (%1)</source>
        <translation>印刷機のプロファイルがインストールされていません（%1）。</translation>
    </message>
    <message>
        <source>the page cannot be written as PostScript</source>
        <translation>ページを PostScript として書き出せません。</translation>
    </message>
    <message>
        <source>the page cannot be written as SVG</source>
        <translation>ページを SVG として書き出せません。</translation>
    </message>
    <message>
        <source>the picture cannot be written as PDF</source>
        <translation>画像を PDF として書き出せません。</translation>
    </message>
    <message>
        <source>the page is too large or too deeply nested to become SVG</source>
        <translation>ページが大きすぎるか入れ子が深すぎて SVG にできません。</translation>
    </message>
    <message>
        <source>only EPS files can be repaired</source>
        <translation>修復できるのは EPS ファイルだけです。</translation>
    </message>
    <message>
        <source>an SVG picture has no inks: its colours are those of a screen</source>
        <translation>SVG 画像にはインキがありません。色は画面のものです。</translation>
    </message>
    <message>
        <source>at %1 dpi a plate has %2 million pixels, and at most %3 million can be handled</source>
        <translation>%1 dpi では版が %2 百万ピクセルになります。扱えるのは %3 百万までです。</translation>
    </message>
    <message>
        <source>the print service cannot be reached</source>
        <translation>プリントサービスに接続できません。</translation>
    </message>
    <message>
        <source>the print service does not answer</source>
        <translation>プリントサービスが応答しません。</translation>
    </message>
    <message>
        <source>the print service gives no answer that makes sense</source>
        <translation>プリントサービスから意味のある応答がありません。</translation>
    </message>
    <message>
        <source>there is no printer</source>
        <translation>プリンタがありません。</translation>
    </message>
    <message>
        <source>no printer is the default one</source>
        <translation>デフォルトのプリンタがありません。</translation>
    </message>
    <message>
        <source>there is no printer named “%1”</source>
        <translation>「%1」というプリンタはありません。</translation>
    </message>
    <message>
        <source>the printer “%1” takes no jobs</source>
        <translation>プリンタ「%1」はジョブを受け付けていません。</translation>
    </message>
    <message>
        <source>the printer “%1” is not open to this user</source>
        <translation>このユーザーはプリンタ「%1」を使えません。</translation>
    </message>
    <message>
        <source>the printer “%1” wants a user name and a password, which are not asked for here</source>
        <translation>プリンタ「%1」はユーザー名とパスワードを求めていますが、ここでは入力できません。</translation>
    </message>
    <message>
        <source>the printer “%1” did not take the job: %2</source>
        <translation>プリンタ「%1」がジョブを受け付けませんでした：%2。</translation>
    </message>
    <message>
        <source>the document has %1 pages, and only the first %2 of them can be printed</source>
        <translation>書類は %1 ページですが、プリントできるのは最初の %2 ページだけです。</translation>
    </message>
    <message>
        <source>there are no such pages: the document has %1</source>
        <translation>そのページはありません。書類は全 %1 ページです。</translation>
    </message>
    <message>
        <source>there are no such pages: the picture takes %1</source>
        <translation>そのページはありません。画像は全 %1 ページです。</translation>
    </message>
    <message>
        <source>the pages would take more than %1 sheets of paper</source>
        <translation>ページが用紙 %1 枚を超えます。</translation>
    </message>
    <message>
        <source>the picture would take more than %1 sheets of paper</source>
        <translation>画像が用紙 %1 枚を超えます。</translation>
    </message>
    <message>
        <source>the margins leave no room on the paper</source>
        <translation>余白のため用紙に場所がありません。</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>ファイルがありません。</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセス権がありません。</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>装置の読み書きでエラーが起きました。</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>開いているファイルが多すぎます。</translation>
    </message>
    <message>
        <source>its PostScript</source>
        <translation>PostScript の部分</translation>
    </message>
    <message>
        <source>its preview</source>
        <translation>プレビューの部分</translation>
    </message>
    <message>
        <source>its plates</source>
        <translation>版の部分</translation>
    </message>
    <message>
        <source>its page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>its pages</source>
        <translation>すべてのページ</translation>
    </message>
    <message>
        <source>no reason is given</source>
        <translation>理由の説明なし</translation>
    </message>
    <message>
        <source>actions that start programs or open other files were left out</source>
        <translation>プログラムを起動したりほかのファイルを開いたりするアクションは省かれました。</translation>
    </message>
    <message>
        <source>what the document does when it is opened was left out</source>
        <translation>書類を開いたときの動作は省かれました。</translation>
    </message>
    <message>
        <source>references to files beside the document were left out</source>
        <translation>書類の外にあるファイルへの参照は省かれました。</translation>
    </message>
    <message>
        <source>PostScript programs that the document holds were left out</source>
        <translation>書類に含まれる PostScript プログラムは省かれました。</translation>
    </message>
    <message>
        <source>glyphs that show themselves were left out</source>
        <translation>自分自身を表示する字形を省きました。</translation>
    </message>
    <message>
        <source>glyphs that show too many others were left out</source>
        <translation>多すぎる別の字形を表示する字形を省きました。</translation>
    </message>
    <message>
        <source>a font cannot be taken over; another stands in for it</source>
        <translation>引き継げないフォントがあるため、別のフォントで代用しています。</translation>
    </message>
    <message>
        <source>the font %1 cannot be taken over; another stands in for it</source>
        <translation>フォント %1 を引き継げないため、別のフォントで代用しています。</translation>
    </message>
    <message>
        <source>the source has no PostScript, so the file holds a preview and nothing else</source>
        <translation>元のファイルに PostScript がないため、ファイルにはプレビューだけが入ります。</translation>
    </message>
    <message>
        <source>the picture gives no PostScript, so the file holds a preview and nothing else</source>
        <translation>画像から PostScript を作れないため、ファイルにはプレビューだけが入ります。</translation>
    </message>
    <message>
        <source>the PDF has no subject, because the document has a description but no title</source>
        <translation>書類に説明はあってもタイトルがないため、PDF に「サブタイトル」が入りません。</translation>
    </message>
    <message>
        <source>the preview could not be written as TIFF</source>
        <translation>プレビューを TIFF として書き出せませんでした。</translation>
    </message>
    <message>
        <source>the result could not be opened again: %1</source>
        <translation>書き出した結果を開き直せませんでした：%1。</translation>
    </message>
    <message>
        <source>an image with more pixels than are granted was left out</source>
        <translation>許された数を超えるピクセルの画像は省かれました。</translation>
    </message>
    <message>
        <source>letters of more fonts or shapes than are granted were left out</source>
        <translation>許された数を超えるフォントや字形の文字は省かれました。</translation>
    </message>
    <message>
        <source>a group that knocks out or blends with what lies below it is put together by itself, as SVG has it</source>
        <translation>抜き合わせのグループや、下にあるものと混ざるグループは、SVG で可能なとおり単独で合成されます。</translation>
    </message>
    <message>
        <source>some text stays outlines: it is a line or a clip, or its font may not or cannot be embedded</source>
        <translation>一部の文字はアウトラインのままです。線やクリップであるか、フォントを埋め込めないためです。</translation>
    </message>
    <message>
        <source>of some characters the document does not tell the meaning: they are shown, and no search finds them</source>
        <translation>何の文字か書類に示されていないものがあります。表示はされますが、検索では見つかりません。</translation>
    </message>
    <message>
        <source>what is drawn through a filter (elements: %1) is held as an image</source>
        <translation>フィルタを通して描かれるもの（要素：%1）は画像になります。</translation>
    </message>
    <message>
        <source>masks (elements: %1) are held as images, what they mask is not</source>
        <translation>マスク（要素：%1）は画像になります。マスクされるものはベクターのままです。</translation>
    </message>
    <message>
        <source>the text is in %1 and is handed on as UTF-8</source>
        <translation>文字は %1 です。UTF-8 として渡されます。</translation>
    </message>
    <message>
        <source>the document's width or height is not a length and is passed over</source>
        <translation>書類の幅または高さが長さになっていないため、無視します。</translation>
    </message>
    <message>
        <source>the document's view box is not readable and is passed over</source>
        <translation>書類の viewBox を読めないため、無視します。</translation>
    </message>
    <message>
        <source>it draws nothing and states no bounding box</source>
        <translation>何も描かず、バウンディングボックスもありません。</translation>
    </message>
    <message>
        <source>it cannot be mended: %1</source>
        <translation>修復できません：%1。</translation>
    </message>
    <message>
        <source>the program was taken out of %1</source>
        <translation>プログラムを %1 から取り出しました。</translation>
    </message>
    <message>
        <source>the program was taken out of its binary file</source>
        <translation>プログラムをバイナリファイルから取り出しました。</translation>
    </message>
    <message>
        <source>the preview was left out</source>
        <translation>プレビューは省かれました。</translation>
    </message>
    <message>
        <source>the Windows metafile was left out</source>
        <translation>Windows メタファイルは省かれました。</translation>
    </message>
    <message>
        <source>a preview of %1 by %2 pixels was made</source>
        <translation>%1 × %2 ピクセルのプレビューを作りました。</translation>
    </message>
    <message>
        <source>the first line is %!PS-Adobe-3.0 EPSF-3.0</source>
        <translation>最初の行を %!PS-Adobe-3.0 EPSF-3.0 にしました。</translation>
    </message>
    <message>
        <source>%%EndComments was put in</source>
        <translation>%%EndComments を入れました。</translation>
    </message>
    <message>
        <source>a second %%EndComments was left out</source>
        <translation>2 つ目の %%EndComments は省かれました。</translation>
    </message>
    <message>
        <source>showpage was put in</source>
        <translation>showpage を入れました。</translation>
    </message>
    <message>
        <source>%%EOF was put in</source>
        <translation>%%EOF を入れました。</translation>
    </message>
    <message>
        <source>what stood behind %%EOF was left out</source>
        <translation>%%EOF の後にあったものは省かれました。</translation>
    </message>
    <message>
        <source>what stood before the first line was left out</source>
        <translation>最初の行の前にあったものは省かれました。</translation>
    </message>
    <message>
        <source>the box at the end of the file stands in its header</source>
        <translation>ファイルの終わりにあったバウンディングボックスをヘッダに移しました。</translation>
    </message>
    <message>
        <source>the bounding box is %1 (%2)</source>
        <translation>バウンディングボックスは %1（%2）です。</translation>
    </message>
    <message>
        <source>%1 was left out, because it stood out of order</source>
        <translation>%1 は順序から外れているため省かれました。</translation>
    </message>
    <message>
        <source>the document is larger than %1 MiB</source>
        <translation>書類が %1 MiB を超えています。</translation>
    </message>
    <message>
        <source>the compressed data is larger than %1 MiB</source>
        <translation>圧縮データが %1 MiB を超えています。</translation>
    </message>
    <message>
        <source>there is not enough memory to inflate the data</source>
        <translation>データを展開するためのメモリが足りません。</translation>
    </message>
    <message>
        <source>the document has a filter with a matrix of more than %1 numbers</source>
        <translation>書類に、%1 個を超える数の行列を持つフィルタがあります。</translation>
    </message>
    <message>
        <source>the selectors of the document's style sheets nest more than %1 deep</source>
        <translation>書類のスタイルシートのセレクタの入れ子が %1 段を超えています。</translation>
    </message>
    <message>
        <source>the document has text of more than %1 units in size</source>
        <translation>書類に、%1 単位を超える大きさの文字があります。</translation>
    </message>
    <message>
        <source>the plates of the page have more pixels than can be handled; a lower resolution helps</source>
        <translation>ページの版のピクセルが多すぎます。解像度を下げると処理できます。</translation>
    </message>
    <message>
        <source>Ghostscript did not separate the page</source>
        <translation>Ghostscript がページを分版できませんでした。</translation>
    </message>
    <message>
        <source>Ghostscript (gs) cannot be started</source>
        <translation>Ghostscript (gs) を起動できません。</translation>
    </message>
    <message>
        <source>the interpreter of PostScript could not be confined</source>
        <translation>PostScript インタプリタを隔離できませんでした。</translation>
    </message>
    <message>
        <source>there is no %%BoundingBox</source>
        <translation>%%BoundingBox がありません。</translation>
    </message>
    <message>
        <source>the file is wrapped as %1, with a Macintosh picture (PICT) of %2 × %3 points as its preview</source>
        <translation>ファイルは %1 で包まれ、%2 × %3 ポイントの Macintosh の画像（PICT）がプレビューです。</translation>
    </message>
    <message>
        <source>there is no preview</source>
        <translation>プレビューがありません。</translation>
    </message>
    <message>
        <source>the file does not begin with %!PS-Adobe</source>
        <translation>ファイルが %!PS-Adobe で始まっていません。</translation>
    </message>
    <message>
        <source>showpage is missing</source>
        <translation>showpage がありません。</translation>
    </message>
    <message>
        <source>the font %1 is a Type 3 font</source>
        <translation>フォント %1 は Type 3 フォントです。</translation>
    </message>
    <message>
        <source>the font %1 is not embedded</source>
        <translation>フォント %1 は埋め込まれていません。</translation>
    </message>
    <message>
        <source>the font %1 is embedded as a whole</source>
        <translation>フォント %1 は全体が埋め込まれています。</translation>
    </message>
    <message>
        <source>there are RGB colours</source>
        <translation>RGB カラーがあります。</translation>
    </message>
    <message>
        <source>white overprints, and will vanish</source>
        <translation>白がオーバープリントになっていて、消えます。</translation>
    </message>
    <message>
        <source>small black text does not overprint</source>
        <translation>小さな黒い文字がオーバープリントになっていません。</translation>
    </message>
    <message>
        <source>the document is encrypted</source>
        <translation>書類は暗号化されています。</translation>
    </message>
    <message>
        <source>it has scripts or animations, which are not run</source>
        <translation>スクリプトまたはアニメーションがありますが、実行されません。</translation>
    </message>
    <message>
        <source>its width or height is absent, or has no unit</source>
        <translation>幅または高さがないか、単位がありません。</translation>
    </message>
    <message>
        <source>there is transparency</source>
        <translation>透明効果があります。</translation>
    </message>
    <message>
        <source>a part of the page was not looked at</source>
        <translation>ページの一部を調べていません。</translation>
    </message>
    <message>
        <source>%%BoundingBox holds "%1" instead of four numbers</source>
        <translation>%%BoundingBox の値が 4 つの数値ではなく「%1」です。</translation>
    </message>
    <message>
        <source>%%BoundingBox holds "%1", which are not all whole numbers</source>
        <translation>%%BoundingBox の「%1」に整数でない値があります。</translation>
    </message>
    <message>
        <source>%%BoundingBox %1 does not enclose %%HiResBoundingBox %2</source>
        <translation>%%BoundingBox %1 が %%HiResBoundingBox %2 を囲んでいません。</translation>
    </message>
    <message>
        <source>%%BoundingBox %1 is far larger than %%HiResBoundingBox %2</source>
        <translation>%%BoundingBox %1 が %%HiResBoundingBox %2 よりはるかに大きい値です。</translation>
    </message>
    <message>
        <source>without a name</source>
        <translation>名前なし</translation>
    </message>
    <message>
        <source>%%BoundingBox is promised for the end and does not come</source>
        <translation>%%BoundingBox は終わりにあるはずですが、ありません。</translation>
    </message>
    <message>
        <source>the bounding box %1 has no area</source>
        <translation>バウンディングボックス %1 に大きさがありません。</translation>
    </message>
    <message>
        <source>nothing but white is drawn inside the bounding box</source>
        <translation>バウンディングボックスの中には白しか描かれていません。</translation>
    </message>
    <message>
        <source>the bounding box %1 cuts the ink off, which reaches %2 pt beyond it: %3</source>
        <translation>バウンディングボックス %1 が絵を切っています。絵は %2 pt はみ出しています：%3。</translation>
    </message>
    <message>
        <source>the bounding box %1 is more than twice as large as the ink: %2</source>
        <translation>バウンディングボックス %1 は絵の 2 倍を超える大きさです：%2。</translation>
    </message>
    <message>
        <source>the %1 section ends at byte %2, the file at byte %3</source>
        <translation>%1 の部分は %2 バイト目で終わりますが、ファイルは %3 バイトです。</translation>
    </message>
    <message>
        <source>the %1 section lies over another part of the file</source>
        <translation>%1 の部分がファイルのほかの部分と重なっています。</translation>
    </message>
    <message>
        <source>bytes before %!PS-Adobe: %1</source>
        <translation>%!PS-Adobe の前のバイト数：%1。</translation>
    </message>
    <message>
        <source>bytes behind %%EOF: %1</source>
        <translation>%%EOF の後のバイト数：%1。</translation>
    </message>
    <message>
        <source>the file needs fonts that it does not bring: %1</source>
        <translation>ファイルに含まれていないフォントが必要です：%1。</translation>
    </message>
    <message>
        <source>the preview is %1 by %2 pixels large, the bounding box %3 by %4 points</source>
        <translation>プレビューは %1 × %2 ピクセル、バウンディングボックスは %3 × %4 ポイントです。</translation>
    </message>
    <message>
        <source>the preview shows another picture than the program draws (mean difference %1 %)</source>
        <translation>プレビューが、プログラムの描く画像と違います（平均の差 %1%）。</translation>
    </message>
    <message>
        <source>the first line "%1" does not say %!PS-Adobe-3.0 EPSF-3.0</source>
        <translation>最初の行「%1」が %!PS-Adobe-3.0 EPSF-3.0 ではありません。</translation>
    </message>
    <message>
        <source>the first line declares PS-Adobe-%1 and EPSF-%2, which do not exist</source>
        <translation>最初の行に、存在しない PS-Adobe-%1 と EPSF-%2 とあります。</translation>
    </message>
    <message>
        <source>the header has no %%EndComments</source>
        <translation>ヘッダに %%EndComments がありません。</translation>
    </message>
    <message>
        <source>%%EndComments stands behind the first line that is no comment</source>
        <translation>%%EndComments が、コメントでない最初の行より後にあります。</translation>
    </message>
    <message>
        <source>lines of more than 255 bytes: %1, the first is line %2</source>
        <translation>255 バイトを超える行：%1 行。最初は %2 行目です。</translation>
    </message>
    <message>
        <source>lines end in %1 different ways</source>
        <translation>改行の種類が %1 種類あります。</translation>
    </message>
    <message>
        <source>a line is %1 pt thin, %2 pt are asked for</source>
        <translation>線の太さが %1 pt です。%2 pt が求められています。</translation>
    </message>
    <message>
        <source>a text is %1 pt small, %2 pt are asked for</source>
        <translation>文字の大きさが %1 pt です。%2 pt が求められています。</translation>
    </message>
    <message>
        <source>a colour takes %1 % of ink, %2 % are allowed</source>
        <translation>インキの総量が %1% の色があります。許されるのは %2% です。</translation>
    </message>
    <message>
        <source>the %1 image of %2 by %3 pixels has %4 dpi, %5 are asked for</source>
        <translation>%2 × %3 ピクセルの画像（%1）は %4 dpi です。%5 dpi が求められています。</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>グレー</translation>
    </message>
    <message>
        <source>line art</source>
        <translation>線画</translation>
    </message>
    <message>
        <source>it names the colour space %1, which the profile does not</source>
        <translation>プロファイルに挙げられていないカラースペース %1 があります。</translation>
    </message>
    <message>
        <source>there is the spot ink %1</source>
        <translation>特色インキ %1 があります。</translation>
    </message>
    <message>
        <source>RGB colours stand beside CMYK colours</source>
        <translation>RGB カラーと CMYK カラーが混在しています。</translation>
    </message>
    <message>
        <source>its permissions forbid %1</source>
        <translation>アクセス権により次のことは許可されていません：%1。</translation>
    </message>
    <message>
        <source>it claims to keep %1</source>
        <translation>%1 に準拠していると宣言しています。</translation>
    </message>
    <message>
        <source>it claims to keep %1 and has no output intent</source>
        <translation>%1 に準拠していると宣言していますが、出力インテントがありません。</translation>
    </message>
    <message>
        <source>it refers to other files, which are never loaded (references: %1)</source>
        <translation>ほかのファイルを参照していますが、読み込まれません（参照：%1）。</translation>
    </message>
    <message>
        <source>elements drawn through filters become images in print: %1</source>
        <translation>フィルタのため印刷で画像になる要素：%1。</translation>
    </message>
    <message>
        <source>something is drawn up to %1 pt outside the page</source>
        <translation>ページの外 %1 pt まで描かれています。</translation>
    </message>
    <message>
        <source>only the first %1 pages were looked at</source>
        <translation>最初の %1 ページだけを調べました。</translation>
    </message>
    <message>
        <source>the picture is %1 mm wide, columns are %2 mm</source>
        <translation>画像の幅は %1 mm、段の幅は %2 mm です。</translation>
    </message>
    <message>
        <source>the file is wrapped as %1</source>
        <translation>ファイルは %1 で包まれています。</translation>
    </message>
    <message>
        <source>%1 takes language level %2, and the header declares %3</source>
        <translation>%1 には言語レベル %2 が必要ですが、ヘッダの指定は %3 です。</translation>
    </message>
    <message>
        <source>none above 1</source>
        <translation>1 以下</translation>
    </message>
    <message>
        <source>%1 has no place in an EPS file</source>
        <translation>%1 は EPS ファイルに使えません。</translation>
    </message>
    <message>
        <source>%1 is declared, and line %2 holds the byte %3</source>
        <translation>%1 と宣言されていますが、%2 行目にバイト %3 があります。</translation>
    </message>
    <message>
        <source>%1 stands behind %2</source>
        <translation>%1 が %2 より後にあります。</translation>
    </message>
    <message>
        <source>%1 ends what did not begin</source>
        <translation>%1 に対応する始まりがありません。</translation>
    </message>
    <message>
        <source>%1 has no end</source>
        <translation>%1 に終わりがありません。</translation>
    </message>
    <message>
        <source>the embedded preview is malformed</source>
        <translation>埋め込まれたプレビューの形式が正しくありません。</translation>
    </message>
    <message>
        <source>the embedded preview is too large</source>
        <translation>埋め込まれたプレビューが大きすぎます。</translation>
    </message>
    <message>
        <source>the embedded preview lies outside of the file</source>
        <translation>埋め込まれたプレビューがファイルの外にあります。</translation>
    </message>
    <message>
        <source>the preview is not a readable TIFF image</source>
        <translation>プレビューは読み取れる TIFF 画像ではありません。</translation>
    </message>
    <message>
        <source>the preview has more than %1 megapixels</source>
        <translation>プレビューが %1 メガピクセルを超えています。</translation>
    </message>
    <message>
        <source>the embedded Windows metafile is damaged</source>
        <translation>埋め込まれた Windows メタファイルが壊れています。</translation>
    </message>
    <message>
        <source>the embedded Windows metafile tells no size</source>
        <translation>埋め込まれた Windows メタファイルに大きさの指定がありません。</translation>
    </message>
    <message>
        <source>a bitmap in the Windows metafile is damaged</source>
        <translation>Windows メタファイルの中のビットマップが壊れています。</translation>
    </message>
    <message>
        <source>a bitmap in the Windows metafile is of a kind that is not drawn</source>
        <translation>Windows メタファイルの中に、描画に対応していない種類のビットマップがあります。</translation>
    </message>
    <message>
        <source>the part of norvex that this picture needs is missing or damaged: %1</source>
        <translation>この画像に必要な Norvex の部品がないか、壊れています：%1。</translation>
    </message>
    <message>
        <source>the measures of the picture are larger than can be handled</source>
        <translation>画像の寸法が大きすぎて扱えません。</translation>
    </message>
    <message>
        <source>the picture process cannot be waited for: too many files are open</source>
        <translation>開いているファイルが多すぎて、画像プロセスを待てません。</translation>
    </message>
    <message>
        <source>no connection to a picture process could be made</source>
        <translation>画像プロセスに接続できませんでした。</translation>
    </message>
    <message>
        <source>the picture cannot be made in this size or at this place</source>
        <translation>この大きさ、またはこの位置では画像を作れません。</translation>
    </message>
    <message>
        <source>the picture is too large to be drawn without seams</source>
        <translation>画像が大きすぎて、継ぎ目なしには描けません</translation>
    </message>
    <message>
        <source>there was not enough memory for work in the background</source>
        <translation>バックグラウンドの作業のためのメモリが足りませんでした</translation>
    </message>
    <message>
        <source>there is no picture</source>
        <translation>画像がありません。</translation>
    </message>
    <message>
        <source>these pixels cannot be converted</source>
        <translation>これらのピクセルは変換できません。</translation>
    </message>
    <message>
        <source>the profile of the press cannot be used</source>
        <translation>印刷機のプロファイルを使えません。</translation>
    </message>
    <message>
        <source>a section of it is missing</source>
        <translation>一部の区画がありません。</translation>
    </message>
    <message>
        <source>it has no end</source>
        <translation>終わりがありません。</translation>
    </message>
    <message>
        <source>the source has no PostScript</source>
        <translation>元のファイルに PostScript がありません。</translation>
    </message>
    <message>
        <source>the source has no comments that a preview could follow</source>
        <translation>元のファイルに、プレビューを入れる位置を示すコメントがありません。</translation>
    </message>
    <message>
        <source>the document has a description but no title to store with it</source>
        <translation>書類に説明はありますが、一緒に保存するタイトルがありません。</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript: it does not begin with %!</source>
        <translation>%! で始まっていないため、Encapsulated PostScript ではありません。</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript: it does not begin with %! and states no bounding box</source>
        <translation>%! で始まらず、バウンディングボックスもないため、Encapsulated PostScript ではありません。</translation>
    </message>
    <message>
        <source>the document is protected by encryption and does not allow %1; what is made of it is not protected</source>
        <translation>書類は暗号化で保護され、%1は許可されていません。ここから作られるものは保護されません。</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>プリント</translation>
    </message>
    <message>
        <source>changing</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>copying</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>the Illustrator operator %1 is not understood and was left out</source>
        <translation>Illustrator の演算子 %1 は解釈できないため省かれました。</translation>
    </message>
    <message>
        <source>the Illustrator operator %1 was left out where its operands are not understood</source>
        <translation>Illustrator の演算子 %1 は、オペランドを解釈できないところで省かれました。</translation>
    </message>
    <message>
        <source>the pattern %1 is not in the file in a form that is understood and was left out</source>
        <translation>パターン %1 は解釈できる形でファイルに入っていないため省かれました。</translation>
    </message>
    <message>
        <source>the gradient %1 is not in the file: a plain colour stands for it</source>
        <translation>グラデーション %1 がファイルにないため、単色で代用しています。</translation>
    </message>
    <message>
        <source>the placed picture %1 is not in the file</source>
        <translation>配置された画像 %1 がファイルに入っていません。</translation>
    </message>
    <message>
        <source>a pdfmark whose operands are wrong was left out</source>
        <translation>オペランドの誤った pdfmark は省かれました。</translation>
    </message>
    <message>
        <source>a part of the artwork could not be drawn (%1)</source>
        <translation>絵の一部を描画できませんでした（%1）。</translation>
    </message>
    <message>
        <source>the page has errors, and something may be missing on its plates</source>
        <translation>ページにエラーがあり、版に何かが欠けているかもしれません。</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1 の %2 行目：%3。</translation>
    </message>
    <message>
        <source>there is no %1, only [limits] and [severities]</source>
        <translation>%1 はありません。使えるのは [limits] と [severities] だけです。</translation>
    </message>
    <message>
        <source>%1 is a number from 0</source>
        <translation>%1 は 0 以上の数値です。</translation>
    </message>
    <message>
        <source>rgb is true or false</source>
        <translation>rgb は true または false です。</translation>
    </message>
    <message>
        <source>colour-spaces is a list of names</source>
        <translation>colour-spaces は名前のリストです。</translation>
    </message>
    <message>
        <source>columns-mm is a list of numbers</source>
        <translation>columns-mm は数値のリストです。</translation>
    </message>
    <message>
        <source>there is no limit %1</source>
        <translation>%1 という制限はありません。</translation>
    </message>
    <message>
        <source>there is no rule %1</source>
        <translation>%1 という規則はありません。</translation>
    </message>
    <message>
        <source>%1 is one of: error, warning, note, off</source>
        <translation>%1 は error、warning、note、off のどれかです。</translation>
    </message>
    <message>
        <source>this is neither a [table] nor a name with = and a value</source>
        <translation>[テーブル] でも、名前と = と値でもありません。</translation>
    </message>
    <message>
        <source>%1 is no ordinary file, as a profile has to be</source>
        <translation>%1 は通常のファイルではありません。プロファイルは通常のファイルでなければなりません。</translation>
    </message>
    <message>
        <source>there is no profile %1, and no file of that name; profiles are: %2</source>
        <translation>%1 というプロファイルもファイルもありません。プロファイル：%2。</translation>
    </message>
    <message>
        <source>%1 is too large for a profile</source>
        <translation>%1 はプロファイルとしては大きすぎます。</translation>
    </message>
    <message>
        <source>Landlock: on, version %1</source>
        <translation>Landlock：有効、バージョン %1。</translation>
    </message>
    <message>
        <source>Landlock: missing</source>
        <translation>Landlock：ありません。</translation>
    </message>
    <message>
        <source>No rules of the kernel about files</source>
        <translation>ファイルについてのカーネルの規則がありません。</translation>
    </message>
    <message>
        <source>Nothing but what engines need can be read, nothing but scratch files written</source>
        <translation>エンジンが必要とするもの以外は読めず、作業ファイル以外には書けません。</translation>
    </message>
    <message>
        <source>Nothing is listed, removed or started besides</source>
        <translation>それ以外の一覧、削除、起動はできません。</translation>
    </message>
    <message>
        <source>There is no TCP</source>
        <translation>TCP は使えません。</translation>
    </message>
    <message>
        <source>There are no signals and no abstract sockets to others</source>
        <translation>ほかのプロセスへのシグナルと抽象ソケットはありません。</translation>
    </message>
    <message>
        <source>Devices cannot be controlled</source>
        <translation>デバイスは制御できません。</translation>
    </message>
    <message>
        <source>This version does not cover %1</source>
        <translation>このバージョンの対象外：%1。</translation>
    </message>
    <message>
        <source>TCP</source>
        <translation>TCP</translation>
    </message>
    <message>
        <source>signals and abstract sockets</source>
        <translation>シグナルと抽象ソケット</translation>
    </message>
    <message>
        <source>control of devices</source>
        <translation>デバイスの制御</translation>
    </message>
    <message>
        <source>cutting files off</source>
        <translation>ファイルの切り詰め</translation>
    </message>
    <message>
        <source>System calls (seccomp): on</source>
        <translation>システムコール (seccomp)：有効。</translation>
    </message>
    <message>
        <source>Only calls on a list: no programs, processes, sockets, tracing, mounts, keys, changed modes or owners</source>
        <translation>一覧にある呼び出しのみ：プログラム、プロセス、ソケット、トレース、マウント、鍵、権限や所有者の変更はできません。</translation>
    </message>
    <message>
        <source>Engines open nothing for writing</source>
        <translation>エンジンは何も書き込み用に開きません。</translation>
    </message>
    <message>
        <source>System calls (seccomp): missing</source>
        <translation>システムコール (seccomp)：ありません。</translation>
    </message>
    <message>
        <source>Every call can be made</source>
        <translation>どの呼び出しもできます。</translation>
    </message>
    <message>
        <source>File view (user and mount namespaces): on</source>
        <translation>ファイルの見え方 (ユーザーとマウントの名前空間)：有効。</translation>
    </message>
    <message>
        <source>Files other than those that engines need do not exist, and all but scratch files are read-only</source>
        <translation>エンジンが必要とするファイルだけが存在し、作業ファイル以外は読み取り専用です。</translation>
    </message>
    <message>
        <source>File view (user and mount namespaces): missing</source>
        <translation>ファイルの見え方 (ユーザーとマウントの名前空間)：ありません。</translation>
    </message>
    <message>
        <source>The system does not permit them to this user</source>
        <translation>システムがこのユーザーに許可していません。</translation>
    </message>
    <message>
        <source>Network and messages (namespaces): on</source>
        <translation>ネットワークとメッセージ (名前空間)：有効。</translation>
    </message>
    <message>
        <source>No network exists</source>
        <translation>ネットワークは存在しません。</translation>
    </message>
    <message>
        <source>No shared memory or queues of others exist</source>
        <translation>ほかの共有メモリーやキューは存在しません。</translation>
    </message>
    <message>
        <source>Of a single picture on the command line: off, for they take time</source>
        <translation>コマンドラインでの 1 枚だけの画像では、時間がかかるため無効です。</translation>
    </message>
    <message>
        <source>Network and messages (namespaces): missing</source>
        <translation>ネットワークとメッセージ (名前空間)：ありません。</translation>
    </message>
    <message>
        <source>What else is on keeps pictures from them</source>
        <translation>ほかの有効な仕組みが画像を遠ざけています。</translation>
    </message>
    <message>
        <source>Limits: memory, processor time, size and number of files, scratch files; no core files</source>
        <translation>制限：メモリー、プロセッサー時間、ファイルの大きさと数、作業ファイル。コアファイルは作りません。</translation>
    </message>
    <message>
        <source>This build watches itself, for which it leaves layers out</source>
        <translation>このビルドは自らを監視するため、いくつかの層を省いています。</translation>
    </message>
    <message>
        <source>Each picture is read in a process of its own that is confined so</source>
        <translation>画像はそれぞれ、このように隔離された専用のプロセスで読み込まれます。</translation>
    </message>
    <message>
        <source>Nothing keeps a picture from this user's files: norvex refuses to read any</source>
        <translation>画像をこのユーザーのファイルから遠ざけるものがないため、norvex はどの画像も読み込みません。</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
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

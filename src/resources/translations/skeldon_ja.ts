<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>StringTable</name>
    <message>
        <source>SKELDON Light</source>
        <comment>AppName</comment>
        <translation>SKELDON Light</translation>
    </message>
    <message>
        <source>Ready</source>
        <comment>Ready</comment>
        <translation>レディ</translation>
    </message>
    <message>
        <source>Connected to KORVA</source>
        <comment>ConnectedToRecorder</comment>
        <translation>KORVAと接続しました</translation>
    </message>
    <message>
        <source> %s(Max %.1fG)</source>
        <comment>PaneModel</comment>
        <translation> %s(最大 %.1fG)</translation>
    </message>
    <message>
        <source> %s(Max %.1fG) Alpha</source>
        <comment>PaneModelAlpha</comment>
        <translation> %s(最大 %.1fG) Alpha</translation>
    </message>
    <message>
        <source>RLS=</source>
        <comment>PaneRelease</comment>
        <translation>RLS=</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>ButtonOk</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>ButtonCancel</comment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>ButtonClose</comment>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>SKELDON Version</source>
        <comment>AboutVersion</comment>
        <translation>SKELDON Version</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <comment>MenuFile</comment>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open...	Ctrl+O</source>
        <comment>MenuFileOpen</comment>
        <translation>開く(&amp;O)...	Ctrl+O</translation>
    </message>
    <message>
        <source>Save &amp;as...	Ctrl+A</source>
        <comment>MenuFileSaveAs</comment>
        <translation>名前を付けて保存(&amp;A)...	Ctrl+A</translation>
    </message>
    <message>
        <source>Export in &amp;CSV format...	Ctrl+T</source>
        <comment>MenuFileExportCsv</comment>
        <translation>CSV形式で出力(&amp;C)...	Ctrl+T</translation>
    </message>
    <message>
        <source>&amp;Print...	Ctrl+P</source>
        <comment>MenuFilePrint</comment>
        <translation>印刷(&amp;P)...	Ctrl+P</translation>
    </message>
    <message>
        <source>Co&amp;nfiguration...</source>
        <comment>MenuFileConfiguration</comment>
        <translation>環境設定(&amp;N)...</translation>
    </message>
    <message>
        <source>E&amp;xit SKELDON Light</source>
        <comment>MenuFileExit</comment>
        <translation>SKELDON Lightの終了(&amp;X)</translation>
    </message>
    <message>
        <source>Mea&amp;sure</source>
        <comment>MenuMeasure</comment>
        <translation>測定(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Get data	Ctrl+D</source>
        <comment>MenuMeasureGetData</comment>
        <translation>データの取得(&amp;G)	Ctrl+D</translation>
    </message>
    <message>
        <source>O&amp;nline Recording</source>
        <comment>MenuMeasureOnline</comment>
        <translation>オンライン記録(&amp;N)</translation>
    </message>
    <message>
        <source>Online Recording Config&amp;uration...</source>
        <comment>MenuMeasureOnlineConfiguration</comment>
        <translation>オンライン記録の設定(&amp;U)...</translation>
    </message>
    <message>
        <source>Char&amp;t</source>
        <comment>MenuChart</comment>
        <translation>グラフ(&amp;T)</translation>
    </message>
    <message>
        <source>Char&amp;t View</source>
        <comment>MenuChartView</comment>
        <translation>グラフ表示(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;X axis</source>
        <comment>MenuChartViewX</comment>
        <translation>X軸(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Y axis</source>
        <comment>MenuChartViewY</comment>
        <translation>Y軸(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Z axis</source>
        <comment>MenuChartViewZ</comment>
        <translation>Z軸(&amp;Z)</translation>
    </message>
    <message>
        <source>&amp;Resultant force</source>
        <comment>MenuChartViewResultant</comment>
        <translation>合成値(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Temperature</source>
        <comment>MenuChartViewTemperature</comment>
        <translation>温度(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Humidity</source>
        <comment>MenuChartViewHumidity</comment>
        <translation>湿度(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Bar chart</source>
        <comment>MenuChartBar</comment>
        <translation>棒グラフ(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Horizontal axis</source>
        <comment>MenuChartHorizontal</comment>
        <translation>横軸(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Inflate</source>
        <comment>MenuChartHorizontalInflate</comment>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Deflate</source>
        <comment>MenuChartHorizontalDeflate</comment>
        <translation>縮小(&amp;D)</translation>
    </message>
    <message>
        <source>Display &amp;all area</source>
        <comment>MenuChartDisplayAllArea</comment>
        <translation>全体を表示(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Vertical axis</source>
        <comment>MenuChartVertical</comment>
        <translation>縦軸(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Inflate</source>
        <comment>MenuChartVerticalInflate</comment>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Deflate</source>
        <comment>MenuChartVerticalDeflate</comment>
        <translation>縮小(&amp;D)</translation>
    </message>
    <message>
        <source>Display in &amp;center</source>
        <comment>MenuChartDisplayInCenter</comment>
        <translation>中央に表示(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Copy chart</source>
        <comment>MenuChartCopy</comment>
        <translation>グラフのコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Pr&amp;operty of chart...</source>
        <comment>MenuChartProperty</comment>
        <translation>グラフのプロパティ(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <comment>MenuView</comment>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Acceleration &amp;unit</source>
        <comment>MenuViewUnit</comment>
        <translation>加速度の単位(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;G</source>
        <comment>MenuViewUnitG</comment>
        <translation>G(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;m/s^2</source>
        <comment>MenuViewUnitMs2</comment>
        <translation>m/s^2(&amp;M)</translation>
    </message>
    <message>
        <source>G&amp;al</source>
        <comment>MenuViewUnitGal</comment>
        <translation>Gal(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Setup view</source>
        <comment>MenuViewSetup</comment>
        <translation>設定画面(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Monitor</source>
        <comment>MenuViewMonitor</comment>
        <translation>モニター(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <comment>MenuHelp</comment>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <comment>MenuHelpHelp</comment>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About SKELDON Light...</source>
        <comment>MenuHelpAbout</comment>
        <translation>SKELDON Lightについて(&amp;A)...</translation>
    </message>
    <message>
        <source>Online &amp;support</source>
        <comment>MenuHelpSupport</comment>
        <translation>オンラインサポート(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <comment>MenuEdit</comment>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <comment>MenuEditAdd</comment>
        <translation>追加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <comment>MenuEditUpdate</comment>
        <translation>更新(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <comment>MenuEditDelete</comment>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Receive messa&amp;ge</source>
        <comment>MenuEditReceive</comment>
        <translation>条件の受信(&amp;G)</translation>
    </message>
    <message>
        <source>Start prompt &amp;measuring...	Ctrl+M</source>
        <comment>MenuMeasureStartPrompt</comment>
        <translation>即時測定の開始(&amp;M)...	Ctrl+M</translation>
    </message>
    <message>
        <source>Start &amp;reserved measuring...</source>
        <comment>MenuMeasureStartReserved</comment>
        <translation>予約測定の開始(&amp;R)...</translation>
    </message>
    <message>
        <source>Msrmnt C&amp;ondition</source>
        <comment>MenuMeasureCondition</comment>
        <translation>測定条件(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <comment>MenuMeasureConditionChange</comment>
        <translation>変更(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <comment>MenuMeasureConditionRestore</comment>
        <translation>元に戻す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Wizard of setup...	Ctrl+W</source>
        <comment>MenuMeasureWizard</comment>
        <translation>設定ウィザード(&amp;W)...	Ctrl+W</translation>
    </message>
    <message>
        <source>&amp;Change Maximum Scanning Level</source>
        <comment>MenuMeasureScanningLevel</comment>
        <translation>最大測定レンジの変更(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <comment>MenuViewProfile</comment>
        <translation>プロファイル(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Template</source>
        <comment>MenuViewTemplate</comment>
        <translation>テンプレート(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Data display</source>
        <comment>MenuViewDataDisplay</comment>
        <translation>データ表示(&amp;D)</translation>
    </message>
    <message>
        <source>Add &amp;mark</source>
        <comment>MenuListAddMark</comment>
        <translation>マークを付ける(&amp;M)</translation>
    </message>
    <message>
        <source>Mark &amp;extracted lines</source>
        <comment>MenuListMarkExtracted</comment>
        <translation>抽出行にマークを付ける(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Remove mark</source>
        <comment>MenuListRemoveMark</comment>
        <translation>マークを外す(&amp;R)</translation>
    </message>
    <message>
        <source>Remove &amp;all mark</source>
        <comment>MenuListRemoveAllMark</comment>
        <translation>すべてのマークを外す(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Delete one line</source>
        <comment>MenuListDeleteOne</comment>
        <translation>1行を削除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete &amp;selected lines</source>
        <comment>MenuListDeleteSelected</comment>
        <translation>選択行を削除(&amp;S)</translation>
    </message>
    <message>
        <source>Delete &amp;illegal lines</source>
        <comment>MenuListDeleteIllegal</comment>
        <translation>異常行を削除(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Copy in CSV format</source>
        <comment>MenuListCopyCsv</comment>
        <translation>CSV形式でコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Copy graph</source>
        <comment>MenuChartPopupCopy</comment>
        <translation>グラフのコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Disp&amp;lay extract condition</source>
        <comment>MenuListDisplayExtract</comment>
        <translation>抽出条件を表示(&amp;L)</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>ButtonOpen</comment>
        <translation>開く</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>ButtonSave</comment>
        <translation>保存</translation>
    </message>
    <message>
        <source>Print</source>
        <comment>ButtonPrint</comment>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Get Data</source>
        <comment>ButtonGetData</comment>
        <translation>データ取得</translation>
    </message>
    <message>
        <source>Online Recording</source>
        <comment>ButtonOnlineRecording</comment>
        <translation>オンライン記録</translation>
    </message>
    <message>
        <source>Setup</source>
        <comment>ButtonSetup</comment>
        <translation>設定画面</translation>
    </message>
    <message>
        <source>Rsltnt</source>
        <comment>ButtonResultant</comment>
        <translation>合成値</translation>
    </message>
    <message>
        <source>deg C</source>
        <comment>ButtonTemperature</comment>
        <translation>温度</translation>
    </message>
    <message>
        <source>Humidity</source>
        <comment>ButtonHumidity</comment>
        <translation>湿度</translation>
    </message>
    <message>
        <source>ZmIn</source>
        <comment>ButtonZoomIn</comment>
        <translation>拡大</translation>
    </message>
    <message>
        <source>ZmOut</source>
        <comment>ButtonZoomOut</comment>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Properties</source>
        <comment>ButtonProperties</comment>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Extract</source>
        <comment>ButtonExtract</comment>
        <translation>抽出</translation>
    </message>
    <message>
        <source>Chart</source>
        <comment>ButtonChart</comment>
        <translation>グラフ</translation>
    </message>
    <message>
        <source>List</source>
        <comment>ButtonList</comment>
        <translation>リスト</translation>
    </message>
    <message>
        <source>3D-View</source>
        <comment>Button3DView</comment>
        <translation>3D表示</translation>
    </message>
    <message>
        <source>Prev</source>
        <comment>ButtonPrev</comment>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Next</source>
        <comment>ButtonNext</comment>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Unsaved</source>
        <comment>Unsaved</comment>
        <translation>未保存</translation>
    </message>
    <message>
        <source>KORVA measured result chart</source>
        <comment>ChartTitleDefault</comment>
        <translation>KORVA 測定結果グラフ</translation>
    </message>
    <message>
        <source>Zoom to the maximum due to the small range</source>
        <comment>ZoomedToMaximum</comment>
        <translation>選択範囲が小さいため、最大まで拡大しました</translation>
    </message>
    <message>
        <source>The data is not saved. 
Do you want to save it?</source>
        <comment>AskSaveData</comment>
        <translation>データが保存されていません。
保存しますか？</translation>
    </message>
    <message>
        <source>Open measured data</source>
        <comment>TitleOpenData</comment>
        <translation>測定データを開く</translation>
    </message>
    <message>
        <source>SKELDON file(skd,sks)|*.skd;*.sks|All|*.*|</source>
        <comment>FilterOpenData</comment>
        <translation>SKELDON ファイル(skd,sks)|*.skd;*.sks|すべて|*.*|</translation>
    </message>
    <message>
        <source>Failed to read.</source>
        <comment>FailedToRead</comment>
        <translation>読み込みに失敗しました。</translation>
    </message>
    <message>
        <source>Loading files...</source>
        <comment>LoadingFiles</comment>
        <translation>ファイルを読み込んでいます...</translation>
    </message>
    <message>
        <source>Error in date/time.
</source>
        <comment>ErrorInDateTime</comment>
        <translation>日付・時刻に異常があります。
</translation>
    </message>
    <message>
        <source>Error in temperature.
</source>
        <comment>ErrorInTemperature</comment>
        <translation>温度に異常があります。
</translation>
    </message>
    <message>
        <source>Error in Humidity.
</source>
        <comment>ErrorInHumidity</comment>
        <translation>湿度に異常があります。
</translation>
    </message>
    <message>
        <source>%s
Failed to write.</source>
        <comment>FailedToWrite</comment>
        <translation>%s
書き込みに失敗しました。</translation>
    </message>
    <message>
        <source>Save measured data</source>
        <comment>TitleSaveData</comment>
        <translation>測定データの保存</translation>
    </message>
    <message>
        <source>SKELDON file(skd)|*.skd|All|*.*|</source>
        <comment>FilterSaveData</comment>
        <translation>SKELDON ファイル(skd)|*.skd|すべて|*.*|</translation>
    </message>
    <message>
        <source>Can not connect to KORVA.</source>
        <comment>CannotConnect</comment>
        <translation>KORVAと接続できません。</translation>
    </message>
    <message>
        <source>Failed to get the data.</source>
        <comment>FailedToGetData</comment>
        <translation>データの取得に失敗しました。</translation>
    </message>
    <message>
        <source>No measured data is available.</source>
        <comment>NoMeasuredData</comment>
        <translation>測定データがありません。</translation>
    </message>
    <message>
        <source>Do not separate KORVA</source>
        <comment>DoNotSeparate</comment>
        <translation>KORVAを取り外さないでください</translation>
    </message>
    <message>
        <source>An error has occurred during online recording.</source>
        <comment>OnlineRecordingError</comment>
        <translation>オンライン記録中にエラーが発生しました。</translation>
    </message>
    <message>
        <source>Start measuring in real mode</source>
        <comment>PromptStartReal</comment>
        <translation>リアルモードでの測定を開始します</translation>
    </message>
    <message>
        <source>Stop measuring in real mode</source>
        <comment>PromptStopReal</comment>
        <translation>リアルモードでの測定を停止します</translation>
    </message>
    <message>
        <source>Configure the real mode setup</source>
        <comment>PromptConfigureReal</comment>
        <translation>リアルモードの設定を行います</translation>
    </message>
    <message>
        <source>Real</source>
        <comment>CaptionReal</comment>
        <translation>リアル</translation>
    </message>
    <message>
        <source>Start</source>
        <comment>CaptionStart</comment>
        <translation>開始</translation>
    </message>
    <message>
        <source>Replay</source>
        <comment>CaptionReplay</comment>
        <translation>再生</translation>
    </message>
    <message>
        <source>Do you want to stop real mode?</source>
        <comment>AskStopReal</comment>
        <translation>リアルモードを停止しますか？</translation>
    </message>
    <message>
        <source>Are you sure to end real mode?</source>
        <comment>AskEndReal</comment>
        <translation>リアルモードを終了してもよろしいですか？</translation>
    </message>
    <message>
        <source>Can not get the measured data. Stopping real mode.</source>
        <comment>StoppingReal</comment>
        <translation>測定データを取得できません。リアルモードを停止します。</translation>
    </message>
    <message>
        <source>Failed to get the data. Stop measuring.</source>
        <comment>StopMeasuring</comment>
        <translation>データの取得に失敗しました。測定を停止します。</translation>
    </message>
    <message>
        <source>Delete all marked lines</source>
        <comment>PromptDeleteMarked</comment>
        <translation>マーク行をすべて削除します</translation>
    </message>
    <message>
        <source>Delete all unmarked lines</source>
        <comment>PromptDeleteUnmarked</comment>
        <translation>マークのない行をすべて削除します</translation>
    </message>
    <message>
        <source>Add mark to the clicked position</source>
        <comment>PromptAddMarkAtClick</comment>
        <translation>クリックした位置にマークを付けます</translation>
    </message>
    <message>
        <source>Remove mark from the clicked position</source>
        <comment>PromptRemoveMarkAtClick</comment>
        <translation>クリックした位置のマークを外します</translation>
    </message>
    <message>
        <source>Move to the previous mark</source>
        <comment>PromptPreviousMark</comment>
        <translation>前のマークへ移動します</translation>
    </message>
    <message>
        <source>Move to the next mark</source>
        <comment>PromptNextMark</comment>
        <translation>次のマークへ移動します</translation>
    </message>
    <message>
        <source>Extract matched condition from measured data</source>
        <comment>PromptExtract</comment>
        <translation>測定データから条件に合う行を抽出します</translation>
    </message>
    <message>
        <source>Date</source>
        <comment>ColumnDate</comment>
        <translation>日付</translation>
    </message>
    <message>
        <source>Time</source>
        <comment>ColumnTime</comment>
        <translation>時刻</translation>
    </message>
    <message>
        <source>X axis</source>
        <comment>ColumnX</comment>
        <translation>X軸</translation>
    </message>
    <message>
        <source>Y axis</source>
        <comment>ColumnY</comment>
        <translation>Y軸</translation>
    </message>
    <message>
        <source>Z axis</source>
        <comment>ColumnZ</comment>
        <translation>Z軸</translation>
    </message>
    <message>
        <source>Rsltnt</source>
        <comment>ColumnResultant</comment>
        <translation>合成値</translation>
    </message>
    <message>
        <source>Temperature (C)</source>
        <comment>ColumnTemperature</comment>
        <translation>温度 (℃)</translation>
    </message>
    <message>
        <source>Humidity (%)</source>
        <comment>ColumnHumidity</comment>
        <translation>湿度 (%)</translation>
    </message>
    <message>
        <source>Making lists...</source>
        <comment>MakingLists</comment>
        <translation>リストを作成しています...</translation>
    </message>
    <message>
        <source>Export in CSV format</source>
        <comment>TitleExportCsv</comment>
        <translation>CSV形式で出力</translation>
    </message>
    <message>
        <source>Comma separated text(csv)|*.csv|All|*.*|</source>
        <comment>FilterCsv</comment>
        <translation>カンマ区切りテキスト(csv)|*.csv|すべて|*.*|</translation>
    </message>
    <message>
        <source>Date/Time</source>
        <comment>CsvDateTime</comment>
        <translation>日時</translation>
    </message>
    <message>
        <source>Date</source>
        <comment>CsvDate</comment>
        <translation>日付</translation>
    </message>
    <message>
        <source>Time</source>
        <comment>CsvTime</comment>
        <translation>時刻</translation>
    </message>
    <message>
        <source>X axis</source>
        <comment>CsvX</comment>
        <translation>X軸</translation>
    </message>
    <message>
        <source>Y axis</source>
        <comment>CsvY</comment>
        <translation>Y軸</translation>
    </message>
    <message>
        <source>Z axis</source>
        <comment>CsvZ</comment>
        <translation>Z軸</translation>
    </message>
    <message>
        <source>Rsltnt</source>
        <comment>CsvResultant</comment>
        <translation>合成値</translation>
    </message>
    <message>
        <source>Temperature</source>
        <comment>CsvTemperature</comment>
        <translation>温度</translation>
    </message>
    <message>
        <source>Humidity</source>
        <comment>CsvHumidity</comment>
        <translation>湿度</translation>
    </message>
    <message>
        <source>Copied to the clipboard</source>
        <comment>CopiedToClipboard</comment>
        <translation>クリップボードにコピーしました</translation>
    </message>
    <message>
        <source>Can not copy to the clipboard.</source>
        <comment>CannotCopy</comment>
        <translation>クリップボードにコピーできません。</translation>
    </message>
    <message>
        <source># of Records</source>
        <comment>FieldRecords</comment>
        <translation>記録数</translation>
    </message>
    <message>
        <source>Sampling</source>
        <comment>FieldSampling</comment>
        <translation>サンプリング</translation>
    </message>
    <message>
        <source>Interval</source>
        <comment>FieldInterval</comment>
        <translation>記録間隔</translation>
    </message>
    <message>
        <source>Threshold</source>
        <comment>FieldThreshold</comment>
        <translation>しきい値</translation>
    </message>
    <message>
        <source>ID</source>
        <comment>FieldId</comment>
        <translation>ID</translation>
    </message>
    <message>
        <source>Hazard</source>
        <comment>FieldHazard</comment>
        <translation>危険値</translation>
    </message>
    <message>
        <source>Endless</source>
        <comment>FieldEndless</comment>
        <translation>エンドレス</translation>
    </message>
    <message>
        <source>    # of Records:%d</source>
        <comment>SummaryRecords</comment>
        <translation>    記録数:%d</translation>
    </message>
    <message>
        <source>    Sampling:0.%04dsec</source>
        <comment>SummarySampling</comment>
        <translation>    サンプリング:0.%04d秒</translation>
    </message>
    <message>
        <source>    Sampling:0.%04dsec(trace mode)</source>
        <comment>SummarySamplingTrace</comment>
        <translation>    サンプリング:0.%04d秒(トレースモード)</translation>
    </message>
    <message>
        <source>    Interval:%dsec</source>
        <comment>SummaryIntervalSeconds</comment>
        <translation>    記録間隔:%d秒</translation>
    </message>
    <message>
        <source>    Interval:%dmin</source>
        <comment>SummaryIntervalMinutes</comment>
        <translation>    記録間隔:%d分</translation>
    </message>
    <message>
        <source>    Threshold:%.1fG</source>
        <comment>SummaryThreshold</comment>
        <translation>    しきい値:%.1fG</translation>
    </message>
    <message>
        <source>    ID:%02d</source>
        <comment>SummaryId</comment>
        <translation>    ID:%02d</translation>
    </message>
    <message>
        <source>@@Hazard:%.1fG</source>
        <comment>SummaryHazard</comment>
        <translation>&#x3000;&#x3000;危険値:%.1fG</translation>
    </message>
    <message>
        <source>@@Endless:on</source>
        <comment>SummaryEndlessOn</comment>
        <translation>&#x3000;&#x3000;エンドレス:オン</translation>
    </message>
    <message>
        <source>Decimals are allowed to %d.</source>
        <comment>DecimalsAllowed</comment>
        <translation>小数点以下は %d 桁までです。</translation>
    </message>
    <message>
        <source>Input the value of %d from %d</source>
        <comment>IntRange</comment>
        <translation>%d から %d の値を入力してください</translation>
    </message>
    <message>
        <source>Input the value of %d from %d to %s</source>
        <comment>IntRangeNamed</comment>
        <translation>%sには %d から %d の値を入力してください</translation>
    </message>
    <message>
        <source>Input the value of %s from %s.</source>
        <comment>FloatRange</comment>
        <translation>%s から %s の値を入力してください。</translation>
    </message>
    <message>
        <source>Input the value of %s from %s to %s.</source>
        <comment>FloatRangeNamed</comment>
        <translation>%sには %s から %s の値を入力してください。</translation>
    </message>
    <message>
        <source>Profile name cannot contain  \&quot;*./:&lt;&gt;?\|</source>
        <comment>ProfileNameCharacters</comment>
        <translation>プロファイル名には次の文字は使えません  \&quot;*./:&lt;&gt;?\|</translation>
    </message>
    <message>
        <source>A chart can&apos;t be used by shortage of memory.</source>
        <comment>ChartNoMemory</comment>
        <translation>メモリ不足のため、グラフを使用できません。</translation>
    </message>
    <message>
        <source>Making chart...</source>
        <comment>MakingChart</comment>
        <translation>グラフを作成しています...</translation>
    </message>
    <message>
        <source>XYZ axes </source>
        <comment>ChartAxes</comment>
        <translation>XYZ軸 </translation>
    </message>
    <message>
        <source>(G)</source>
        <comment>ChartUnitG</comment>
        <translation>(G)</translation>
    </message>
    <message>
        <source>(m/s^2)</source>
        <comment>ChartUnitMs2</comment>
        <translation>(m/s^2)</translation>
    </message>
    <message>
        <source>(Gal)</source>
        <comment>ChartUnitGal</comment>
        <translation>(Gal)</translation>
    </message>
    <message>
        <source>Temperature(C) </source>
        <comment>ChartTemperature</comment>
        <translation>温度(℃) </translation>
    </message>
    <message>
        <source>Humidity(%)</source>
        <comment>ChartHumidity</comment>
        <translation>湿度(%)</translation>
    </message>
    <message>
        <source>Time</source>
        <comment>ChartTime</comment>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Elapsed Time</source>
        <comment>ChartElapsedTime</comment>
        <translation>経過時間</translation>
    </message>
    <message>
        <source>Chart properties</source>
        <comment>TitleChartProperties</comment>
        <translation>グラフのプロパティ</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>ChartColor</comment>
        <translation>色</translation>
    </message>
    <message>
        <source>&amp;X axis :</source>
        <comment>ChartColorX</comment>
        <translation>X軸(&amp;X) :</translation>
    </message>
    <message>
        <source>&amp;Y axis :</source>
        <comment>ChartColorY</comment>
        <translation>Y軸(&amp;Y) :</translation>
    </message>
    <message>
        <source>&amp;Z axis :</source>
        <comment>ChartColorZ</comment>
        <translation>Z軸(&amp;Z) :</translation>
    </message>
    <message>
        <source>&amp;Resultant :</source>
        <comment>ChartColorResultant</comment>
        <translation>合成値(&amp;R) :</translation>
    </message>
    <message>
        <source>deg &amp;C :</source>
        <comment>ChartColorTemperature</comment>
        <translation>温度(&amp;C) :</translation>
    </message>
    <message>
        <source>&amp;Humidity :</source>
        <comment>ChartColorHumidity</comment>
        <translation>湿度(&amp;H) :</translation>
    </message>
    <message>
        <source>&amp;Direction :</source>
        <comment>ChartColorDirection</comment>
        <translation>指示線(&amp;D) :</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <comment>ChartColorMark</comment>
        <translation>マーク(&amp;M)</translation>
    </message>
    <message>
        <source>Bowse...</source>
        <comment>ChartBrowse</comment>
        <translation>参照...</translation>
    </message>
    <message>
        <source>&amp;Standard colors</source>
        <comment>ChartStandardColors</comment>
        <translation>標準の色(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Lines weight for monitor</source>
        <comment>ChartScreenLines</comment>
        <translation>画面の線の太さ(&amp;L)</translation>
    </message>
    <message>
        <source>Line weight for &amp;printing</source>
        <comment>ChartPrintLines</comment>
        <translation>印刷の線の太さ(&amp;P)</translation>
    </message>
    <message>
        <source>Thin</source>
        <comment>ChartThin</comment>
        <translation>細い</translation>
    </message>
    <message>
        <source>Thick</source>
        <comment>ChartThick</comment>
        <translation>太い</translation>
    </message>
    <message>
        <source>Time &amp;format</source>
        <comment>ChartTimeFormat</comment>
        <translation>時刻の形式(&amp;F)</translation>
    </message>
    <message>
        <source>Time</source>
        <comment>ChartFormatTime</comment>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Elapsed Time</source>
        <comment>ChartFormatElapsed</comment>
        <translation>経過時間</translation>
    </message>
    <message>
        <source>Print &amp;title</source>
        <comment>ChartPrintTitle</comment>
        <translation>印刷タイトル(&amp;T)</translation>
    </message>
    <message>
        <source>List</source>
        <comment>PrintList</comment>
        <translation>リスト</translation>
    </message>
    <message>
        <source>Chart</source>
        <comment>PrintChart</comment>
        <translation>グラフ</translation>
    </message>
    <message>
        <source>Print range</source>
        <comment>PrintRangeOfChart</comment>
        <translation>印刷範囲</translation>
    </message>
    <message>
        <source>Print of charts is in view image.</source>
        <comment>PrintChartIsView</comment>
        <translation>グラフは表示イメージで印刷されます。</translation>
    </message>
    <message>
        <source>Print r&amp;ange</source>
        <comment>PrintRangeOfList</comment>
        <translation>印刷範囲(&amp;A)</translation>
    </message>
    <message>
        <source>Pring range is 1 to 9999 lines.</source>
        <comment>PrintRangeTemplate</comment>
        <translation>印刷範囲は 1 から 9999 行です。</translation>
    </message>
    <message>
        <source>Allowable range is from 1 to %d lines.</source>
        <comment>PrintRangeLines</comment>
        <translation>指定できる範囲は 1 から %d 行です。</translation>
    </message>
    <message>
        <source>Colla&amp;te</source>
        <comment>PrintCollate</comment>
        <translation>部単位で印刷(&amp;T)</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <comment>PrintPreview</comment>
        <translation>プレビュー(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <comment>PrintOptions</comment>
        <translation>オプション(&amp;O)...</translation>
    </message>
    <message>
        <source>Advanced Settings for Graph printing</source>
        <comment>PrintAdvancedChart</comment>
        <translation>グラフ印刷の詳細設定</translation>
    </message>
    <message>
        <source>Advanced Settings for List printing</source>
        <comment>PrintAdvancedList</comment>
        <translation>リスト印刷の詳細設定</translation>
    </message>
    <message>
        <source>Mar&amp;gins 0-%d</source>
        <comment>PrintMargins</comment>
        <translation>余白(&amp;G) 0-%d</translation>
    </message>
    <message>
        <source>&amp;Zoom %d-%d</source>
        <comment>PrintZoom</comment>
        <translation>倍率(&amp;Z) %d-%d</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <comment>PrintNoMemory</comment>
        <translation>メモリが不足しています。</translation>
    </message>
    <message>
        <source>This printer does not support Collate Copies.</source>
        <comment>CollateNotSupported</comment>
        <translation>このプリンターは部単位の印刷に対応していません。</translation>
    </message>
    <message>
        <source>The size of print is too small.
Select smaller margins.</source>
        <comment>PrintTooSmall</comment>
        <translation>印刷サイズが小さすぎます。
余白を小さくしてください。</translation>
    </message>
    <message>
        <source>SKELDON : %s    %d/%d</source>
        <comment>PrintListHead</comment>
        <translation>SKELDON : %s    %d/%d</translation>
    </message>
    <message>
        <source>SKELDON</source>
        <comment>TitleCable</comment>
        <translation>SKELDON</translation>
    </message>
    <message>
        <source>Disconnect KORVA cable.</source>
        <comment>DisconnectCable</comment>
        <translation>KORVAのケーブルを外してください。</translation>
    </message>
    <message>
        <source>Start calibrating. Have your magnet ready.
Are you sure?</source>
        <comment>AskCalibrate</comment>
        <translation>校正を開始します。マグネットを用意してください。
よろしいですか？</translation>
    </message>
    <message>
        <source>Could not start calibrating.</source>
        <comment>CouldNotCalibrate</comment>
        <translation>校正を開始できませんでした。</translation>
    </message>
    <message>
        <source>Start adjusting temperature.
Are you sure?</source>
        <comment>AskAdjustTemperature</comment>
        <translation>温度の調整を開始します。
よろしいですか？</translation>
    </message>
    <message>
        <source>Could not start adjusting temperature.</source>
        <comment>CouldNotAdjustTemperature</comment>
        <translation>温度の調整を開始できませんでした。</translation>
    </message>
    <message>
        <source>Failed to adjust host number.</source>
        <comment>FailedToAdjustHostNumber</comment>
        <translation>ホスト番号の調整に失敗しました。</translation>
    </message>
    <message>
        <source>Remove KORVA cable.</source>
        <comment>RemoveCable</comment>
        <translation>KORVAのケーブルを取り外してください。</translation>
    </message>
    <message>
        <source>Dates have been corrected for the new year.</source>
        <comment>DatesCorrected</comment>
        <translation>年をまたいだ日付を補正しました。</translation>
    </message>
    <message>
        <source>SKELDON - Monitor</source>
        <comment>TitleMonitor</comment>
        <translation>SKELDON - モニター</translation>
    </message>
    <message>
        <source>&amp;Always watched</source>
        <comment>MonitorAlwaysWatched</comment>
        <translation>常に監視する(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Max lines :</source>
        <comment>MonitorMaxLines</comment>
        <translation>最大行数(&amp;M) :</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <comment>MonitorSet</comment>
        <translation>設定(&amp;S)</translation>
    </message>
    <message>
        <source>Cali&amp;brate</source>
        <comment>MonitorCalibrate</comment>
        <translation>校正(&amp;B)</translation>
    </message>
    <message>
        <source>Comman&amp;d :</source>
        <comment>MonitorCommand</comment>
        <translation>コマンド(&amp;D) :</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <comment>MonitorCopy</comment>
        <translation>コピー(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <comment>MonitorClear</comment>
        <translation>クリア(&amp;C)</translation>
    </message>
    <message>
        <source>sec</source>
        <comment>OnlineSeconds</comment>
        <translation>秒</translation>
    </message>
    <message>
        <source>Online Recording Configuration</source>
        <comment>TitleOnlineConfiguration</comment>
        <translation>オンライン記録の設定</translation>
    </message>
    <message>
        <source>&amp;Maximum Recording Time :</source>
        <comment>OnlineMaximumTime</comment>
        <translation>最大記録時間(&amp;M) :</translation>
    </message>
    <message>
        <source>sec</source>
        <comment>OnlineMaximumTimeUnit</comment>
        <translation>秒</translation>
    </message>
    <message>
        <source>%d(%dmin)</source>
        <comment>OnlineListMinutes</comment>
        <translation>%d(%d分)</translation>
    </message>
    <message>
        <source>Maximum number of recording</source>
        <comment>OnlineMaximumName</comment>
        <translation>最大記録時間</translation>
    </message>
    <message>
        <source>This sampling rate cannot be used with the connected KORVA.
Will you scan using the standard value %s?</source>
        <comment>AskSamplingStandard</comment>
        <translation>接続されているKORVAでは、このサンプリングは使用できません。
標準値 %s で測定しますか？</translation>
    </message>
    <message>
        <source>0.0312sec</source>
        <comment>StandardSampling</comment>
        <translation>0.0312秒</translation>
    </message>
    <message>
        <source>This recording interval cannot be used with the connected KORVA.
Will you scan using the standard value %s?</source>
        <comment>AskIntervalStandard</comment>
        <translation>接続されているKORVAでは、この記録間隔は使用できません。
標準値 %s で測定しますか？</translation>
    </message>
    <message>
        <source>1min</source>
        <comment>StandardInterval</comment>
        <translation>1分</translation>
    </message>
    <message>
        <source>This threshold cannot be used with the connected KORVA.
Will you scan with the threshold value of 0.0G?</source>
        <comment>AskThresholdZero</comment>
        <translation>接続されているKORVAでは、このしきい値は使用できません。
しきい値 0.0G で測定しますか？</translation>
    </message>
    <message>
        <source>This threshold cannot be used with the connected KORVA.
Will you scan using the approximate value %.1fG?</source>
        <comment>AskThresholdApproximate</comment>
        <translation>接続されているKORVAでは、このしきい値は使用できません。
近似値 %.1fG で測定しますか？</translation>
    </message>
    <message>
        <source>You cannot use the hazard with the connected KORVA.</source>
        <comment>NoHazard</comment>
        <translation>接続されているKORVAでは、危険値は使用できません。</translation>
    </message>
    <message>
        <source>This hazard value cannot be used with the connected KORVA.
Will you cancel the hazard value and scan?</source>
        <comment>AskHazardCancel</comment>
        <translation>接続されているKORVAでは、この危険値は使用できません。
危険値を解除して測定しますか？</translation>
    </message>
    <message>
        <source>This hazard value cannot be used with the connected KORVA.
Will you scan using the approximate value %.1fG?</source>
        <comment>AskHazardApproximate</comment>
        <translation>接続されているKORVAでは、この危険値は使用できません。
近似値 %.1fG で測定しますか？</translation>
    </message>
    <message>
        <source>You cannot use the Endless mode (Cyclic Recording) with the connected KORVA.</source>
        <comment>NoEndless</comment>
        <translation>接続されているKORVAでは、エンドレスモード(循環記録)は使用できません。</translation>
    </message>
    <message>
        <source>You cannot use the buzzer with the connected KORVA.</source>
        <comment>NoBuzzer</comment>
        <translation>接続されているKORVAでは、ブザーは使用できません。</translation>
    </message>
    <message>
        <source>Specified recording intervals is not available to the connected KORVA.
Do you want to measure by using the default value?</source>
        <comment>AskIntervalDefault</comment>
        <translation>指定された記録間隔は、接続されているKORVAでは使用できません。
標準値で測定しますか？</translation>
    </message>
    <message>
        <source>To preserve the settings of the automatic operation, you may need to Add and Update.</source>
        <comment>AutomaticNeedsUpdate</comment>
        <translation>自動動作の設定を保存するには、追加または更新が必要です。</translation>
    </message>
    <message>
        <source>Sampling cycle is out of supported range. Default value is set</source>
        <comment>SamplingOutOfRange</comment>
        <translation>サンプリングが対応範囲外のため、標準値を設定しました</translation>
    </message>
    <message>
        <source> sec</source>
        <comment>SamplingSeconds</comment>
        <translation> 秒</translation>
    </message>
    <message>
        <source> Trace mode</source>
        <comment>SamplingTraceMode</comment>
        <translation> トレースモード</translation>
    </message>
    <message>
        <source> minute</source>
        <comment>IntervalMinutes</comment>
        <translation> 分</translation>
    </message>
    <message>
        <source> sec</source>
        <comment>IntervalSeconds</comment>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Promptly, start measuring</source>
        <comment>StartPromptly</comment>
        <translation>ただちに測定を開始</translation>
    </message>
    <message>
        <source>Magnet trigger only on start measuring</source>
        <comment>StartOnMagnet</comment>
        <translation>マグネットで測定を開始</translation>
    </message>
    <message>
        <source>Magnet on start measuring. After start, measuring stop on magnet</source>
        <comment>StartStopOnMagnet</comment>
        <translation>マグネットで測定を開始。開始後はマグネットで測定を停止</translation>
    </message>
    <message>
        <source>Magnet on start measuring. After start, measuring pause on magnet. Restart on releasing magnet</source>
        <comment>StartPauseOnMagnet</comment>
        <translation>マグネットで測定を開始。開始後はマグネットで一時停止、マグネットを離すと再開</translation>
    </message>
    <message>
        <source>Magnet on start measuring. After start, measuring pause on releasing magnet. Restart on magnet</source>
        <comment>StartPauseOffMagnet</comment>
        <translation>マグネットで測定を開始。開始後はマグネットを離すと一時停止、マグネットで再開</translation>
    </message>
    <message>
        <source>Start measuring in %d seconds</source>
        <comment>StartAfterSeconds</comment>
        <translation>%d 秒後に測定を開始</translation>
    </message>
    <message>
        <source>Prmpt Measuring</source>
        <comment>ButtonPromptMeasuring</comment>
        <translation>即時測定</translation>
    </message>
    <message>
        <source>Rsrvd Measuring</source>
        <comment>ButtonReservedMeasuring</comment>
        <translation>予約測定</translation>
    </message>
    <message>
        <source>Profile</source>
        <comment>LabelProfile</comment>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Template</source>
        <comment>LabelTemplate</comment>
        <translation>テンプレート</translation>
    </message>
    <message>
        <source>Add</source>
        <comment>ButtonAdd</comment>
        <translation>追加</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>ButtonUpdate</comment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>ButtonDelete</comment>
        <translation>削除</translation>
    </message>
    <message>
        <source>Receive</source>
        <comment>ButtonReceive</comment>
        <translation>受信</translation>
    </message>
    <message>
        <source>Profile</source>
        <comment>ButtonProfile</comment>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Template</source>
        <comment>ButtonTemplate</comment>
        <translation>テンプレート</translation>
    </message>
    <message>
        <source>Change</source>
        <comment>ButtonChange</comment>
        <translation>変更</translation>
    </message>
    <message>
        <source>Restore</source>
        <comment>ButtonRestore</comment>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Wizard of Setup</source>
        <comment>ButtonWizard</comment>
        <translation>設定ウィザード</translation>
    </message>
    <message>
        <source>R Interval</source>
        <comment>PanelInterval</comment>
        <translation>記録間隔</translation>
    </message>
    <message>
        <source>Threshold</source>
        <comment>PanelThreshold</comment>
        <translation>しきい値</translation>
    </message>
    <message>
        <source>Detect Over T</source>
        <comment>PanelDetectOver</comment>
        <translation>しきい値超過</translation>
    </message>
    <message>
        <source>ID</source>
        <comment>PanelId</comment>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Option</source>
        <comment>PanelStartOption</comment>
        <translation>開始条件</translation>
    </message>
    <message>
        <source>Hazard</source>
        <comment>PanelHazard</comment>
        <translation>危険値</translation>
    </message>
    <message>
        <source>Endless</source>
        <comment>PanelEndless</comment>
        <translation>エンドレス</translation>
    </message>
    <message>
        <source>Buzzer</source>
        <comment>PanelBuzzer</comment>
        <translation>ブザー</translation>
    </message>
    <message>
        <source>Sampling</source>
        <comment>PanelSampling</comment>
        <translation>サンプリング</translation>
    </message>
    <message>
        <source># of Records</source>
        <comment>PanelRecords</comment>
        <translation>記録数</translation>
    </message>
    <message>
        <source>Data Display</source>
        <comment>ButtonDataDisplay</comment>
        <translation>データ表示</translation>
    </message>
    <message>
        <source>Auto Oprtin</source>
        <comment>ButtonAutomatic</comment>
        <translation>自動動作</translation>
    </message>
    <message>
        <source>Wizard of Calibrate</source>
        <comment>ButtonCalibrateWizard</comment>
        <translation>校正ウィザード</translation>
    </message>
    <message>
        <source>No further registration is available.
Delete unnecessary profiles.</source>
        <comment>NoFurtherRegistration</comment>
        <translation>これ以上登録できません。
不要なプロファイルを削除してください。</translation>
    </message>
    <message>
        <source>Host number (ID) %d is not allowed. Are you sure you want to register it as %d ?</source>
        <comment>AskRegisterAs</comment>
        <translation>ホスト番号(ID) %d は使用できません。 %d として登録してもよろしいですか？</translation>
    </message>
    <message>
        <source>Could not save profile.</source>
        <comment>CouldNotSaveProfile</comment>
        <translation>プロファイルを保存できませんでした。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete 
%s ?</source>
        <comment>AskDeleteProfile</comment>
        <translation>次のプロファイルを削除してもよろしいですか？
%s</translation>
    </message>
    <message>
        <source>Failed to receive the values of KORVA settings.</source>
        <comment>FailedToReceive</comment>
        <translation>KORVAの設定値の受信に失敗しました。</translation>
    </message>
    <message>
        <source>Start option is out of supported range. Default value is set</source>
        <comment>StartOptionOutOfRange</comment>
        <translation>開始条件が対応範囲外のため、標準値を設定しました</translation>
    </message>
    <message>
        <source>Buzzer configuration valid only with QM70 Alpha</source>
        <comment>BuzzerOnlyWithAlpha</comment>
        <translation>ブザーの設定はQM70 Alphaでのみ有効です</translation>
    </message>
    <message>
        <source>Will you change the maximum scanning level of KORVA to %.1fG?</source>
        <comment>AskChangeRange</comment>
        <translation>KORVAの最大測定レンジを %.1fG に変更しますか？</translation>
    </message>
    <message>
        <source>The maximum scanning level of KORVA has been changed successfully.</source>
        <comment>RangeChanged</comment>
        <translation>KORVAの最大測定レンジを変更しました。</translation>
    </message>
    <message>
        <source>An error has occurred while changing the maximum scanning level of KORVA.</source>
        <comment>RangeChangeError</comment>
        <translation>KORVAの最大測定レンジの変更中にエラーが発生しました。</translation>
    </message>
    <message>
        <source>Connecting KORVA ...</source>
        <comment>Connecting</comment>
        <translation>KORVAと接続しています ...</translation>
    </message>
    <message>
        <source>Reserved measurement start</source>
        <comment>TitleReservedStart</comment>
        <translation>予約測定の開始</translation>
    </message>
    <message>
        <source>Start option is invalid.</source>
        <comment>StartOptionInvalid</comment>
        <translation>開始条件は無効です。</translation>
    </message>
    <message>
        <source>Start date and time</source>
        <comment>StartDateTime</comment>
        <translation>開始日時</translation>
    </message>
    <message>
        <source>&amp;Date :</source>
        <comment>StartDate</comment>
        <translation>日付(&amp;D) :</translation>
    </message>
    <message>
        <source>&amp;Time :</source>
        <comment>StartTime</comment>
        <translation>時刻(&amp;T) :</translation>
    </message>
    <message>
        <source>Reservation date should be in the future.</source>
        <comment>ReservationInPast</comment>
        <translation>予約日時には未来の日時を指定してください。</translation>
    </message>
    <message>
        <source>Start %smeasuring.
Are you sure?</source>
        <comment>AskStart</comment>
        <translation>%s測定を開始します。
よろしいですか？</translation>
    </message>
    <message>
        <source>Start %smeasuring after clearing the measured KORVA data.
Are you sure?</source>
        <comment>AskStartAfterClearing</comment>
        <translation>KORVAの測定データを消去して%s測定を開始します。
よろしいですか？</translation>
    </message>
    <message>
        <source>Start %smeasuring.
Do you want to clear the KORVA measured data?</source>
        <comment>AskStartAndClear</comment>
        <translation>%s測定を開始します。
KORVAの測定データを消去しますか？</translation>
    </message>
    <message>
        <source>

[ %s ]</source>
        <comment>StartQuestionTail</comment>
        <translation>

[ %s ]</translation>
    </message>
    <message>
        <source>Could not start measuring.</source>
        <comment>CouldNotStart</comment>
        <translation>測定を開始できませんでした。</translation>
    </message>
    <message>
        <source>Set the sampling.</source>
        <comment>WizardSampling</comment>
        <translation>サンプリングを設定します。</translation>
    </message>
    <message>
        <source>Set the cycle to measure.<byte value="xd"/>
 When trace mode is selected, recording starts every  specified sampling cycle, from the time when the excess of the threshold is first detected. (trigger mode)</source>
        <comment>WizardSamplingText</comment>
        <translation>測定する周期を設定します。<byte value="xd"/>
 トレースモードを選択すると、最初にしきい値の超過を検出した時点から、指定したサンプリング周期ごとに記録します。(トリガーモード)</translation>
    </message>
    <message>
        <source>Set recording intervals.</source>
        <comment>WizardInterval</comment>
        <translation>記録間隔を設定します。</translation>
    </message>
    <message>
        <source>Set the recording intervals.<byte value="xd"/>
 The maximum record of the measured sampling is recorded during the specified the recording intervals (One data per recording interval)</source>
        <comment>WizardIntervalText</comment>
        <translation>記録間隔を設定します。<byte value="xd"/>
 指定した記録間隔の間にサンプリングした測定値の最大値を記録します。(記録間隔ごとに1データ)</translation>
    </message>
    <message>
        <source>Set a threshold.</source>
        <comment>WizardThreshold</comment>
        <translation>しきい値を設定します。</translation>
    </message>
    <message>
        <source>Set a threshold.<byte value="xd"/>
 All sampling measurement data that exceeds the specified threshold will be recorded.<byte value="xd"/>
 When threshold is 0, one maximum data during the recording interval is recorded.</source>
        <comment>WizardThresholdText</comment>
        <translation>しきい値を設定します。<byte value="xd"/>
 指定したしきい値を超えたサンプリングの測定データをすべて記録します。<byte value="xd"/>
 しきい値が0のときは、記録間隔の間の最大値を1データ記録します。</translation>
    </message>
    <message>
        <source>Set it active, the detection of the excess of upper threshold.</source>
        <comment>WizardDetectOver</comment>
        <translation>しきい値超過の検出を設定します。</translation>
    </message>
    <message>
        <source>Set the option of the display &quot;SHOCKED&quot; on LCD when the excess of the threshold is detected.<byte value="xd"/>
(Not applicable during the trace mode)</source>
        <comment>WizardDetectOverText</comment>
        <translation>しきい値の超過を検出したときに、液晶に&quot;SHOCKED&quot;を表示するかどうかを設定します。<byte value="xd"/>
(トレースモードでは無効です)</translation>
    </message>
    <message>
        <source>Set host number (ID).</source>
        <comment>WizardId</comment>
        <translation>ホスト番号(ID)を設定します。</translation>
    </message>
    <message>
        <source>Set the number from 1 to 99 to KORVA<byte value="xd"/>
The host number specified in an existing profile is not available.</source>
        <comment>WizardIdText</comment>
        <translation>KORVAに1から99までの番号を設定します。<byte value="xd"/>
既存のプロファイルに指定されているホスト番号は使用できません。</translation>
    </message>
    <message>
        <source>Set the starting option.</source>
        <comment>WizardStartOption</comment>
        <translation>開始条件を設定します。</translation>
    </message>
    <message>
        <source>0: Promptly, start measuring. Maximum value display mode (magnet reset)<byte value="xd"/>
1: Magnet trigger only on start measuring<byte value="xd"/>
2: Magnet on start measuring. After start, measuring stop on magnet<byte value="xd"/>
3 Magnet on start measuring. After start, measuring pause on magnet. Restart on releasing magnet<byte value="xd"/>
4: Magnet on start measuring. After start, measuring pause on releasing magnet. Restart on magnet<byte value="xd"/>
5〜90: Set the idling time (sec.) after USB cable is disconnected till measuring starts.</source>
        <comment>WizardStartOptionText</comment>
        <translation>0: ただちに測定を開始。最大値表示モード(マグネットでリセット)<byte value="xd"/>
1: マグネットで測定を開始<byte value="xd"/>
2: マグネットで測定を開始。開始後はマグネットで測定を停止<byte value="xd"/>
3: マグネットで測定を開始。開始後はマグネットで一時停止、マグネットを離すと再開<byte value="xd"/>
4: マグネットで測定を開始。開始後はマグネットを離すと一時停止、マグネットで再開<byte value="xd"/>
5〜90: USBケーブルを外してから測定を開始するまでの待ち時間(秒)を設定します。</translation>
    </message>
    <message>
        <source>Configure hazard value.</source>
        <comment>WizardHazard</comment>
        <translation>危険値を設定します。</translation>
    </message>
    <message>
        <source>When G higher than the configured level is detected, it will stop after 1000 records.<byte value="xd"/>
When is configured at 0, it will not stop.</source>
        <comment>WizardHazardText</comment>
        <translation>設定した値を超えるGを検出すると、その後1000件を記録して停止します。<byte value="xd"/>
0に設定したときは停止しません。</translation>
    </message>
    <message>
        <source>Configure the Endless mode (Cyclic Recording)</source>
        <comment>WizardEndless</comment>
        <translation>エンドレスモード(循環記録)を設定します</translation>
    </message>
    <message>
        <source>Configure ON/OFF for Endless Recording (Cyclic Recording).<byte value="xd"/>
When is ON, it will  not stop when data is full, but will overwrite the oldest data with the new,<byte value="xd"/>
When is OFF, it will stop when data is full.</source>
        <comment>WizardEndlessText</comment>
        <translation>エンドレス記録(循環記録)のオン／オフを設定します。<byte value="xd"/>
オンのときは、データがいっぱいになっても停止せず、古いデータから順に上書きします。<byte value="xd"/>
オフのときは、データがいっぱいになると停止します。</translation>
    </message>
    <message>
        <source>Configure the buzzer.</source>
        <comment>WizardBuzzer</comment>
        <translation>ブザーを設定します。</translation>
    </message>
    <message>
        <source>Configure the buzzer.<byte value="xd"/>
Valid only for type QM70 Alpha.</source>
        <comment>WizardBuzzerText</comment>
        <translation>ブザーを設定します。<byte value="xd"/>
QM70 Alphaでのみ有効です。</translation>
    </message>
    <message>
        <source>Configuration</source>
        <comment>TitleConfiguration</comment>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>File</source>
        <comment>PageFile</comment>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Setup &amp;wizard</source>
        <comment>FileWizard</comment>
        <translation>設定ウィザード(&amp;W)</translation>
    </message>
    <message>
        <source>Interactively</source>
        <comment>FileInteractively</comment>
        <translation>対話形式</translation>
    </message>
    <message>
        <source>Card Form</source>
        <comment>FileCardForm</comment>
        <translation>カード形式</translation>
    </message>
    <message>
        <source>Confirm data is &amp;saved before closing.</source>
        <comment>FileConfirmSaved</comment>
        <translation>データを閉じる前に保存を確認(&amp;S)</translation>
    </message>
    <message>
        <source>Prompt</source>
        <comment>FilePrompt</comment>
        <translation>確認する</translation>
    </message>
    <message>
        <source>Not prompt</source>
        <comment>FileNotPrompt</comment>
        <translation>確認しない</translation>
    </message>
    <message>
        <source>&amp;Prohibit the update of profile.</source>
        <comment>FileProhibitUpdate</comment>
        <translation>プロファイルの更新を禁止する(&amp;P)</translation>
    </message>
    <message>
        <source>CSV</source>
        <comment>PageCsv</comment>
        <translation>CSV</translation>
    </message>
    <message>
        <source>&amp;Resultant</source>
        <comment>CsvPageResultant</comment>
        <translation>合成値(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Temperature</source>
        <comment>CsvPageTemperature</comment>
        <translation>温度(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Humidity</source>
        <comment>CsvPageHumidity</comment>
        <translation>湿度(&amp;H)</translation>
    </message>
    <message>
        <source>Date&amp;+Time</source>
        <comment>CsvPageDateTime</comment>
        <translation>日付+時刻(&amp;+)</translation>
    </message>
    <message>
        <source>Acceleration &amp;unit</source>
        <comment>CsvPageUnit</comment>
        <translation>加速度の単位(&amp;U)</translation>
    </message>
    <message>
        <source>G</source>
        <comment>CsvPageUnitG</comment>
        <translation>G</translation>
    </message>
    <message>
        <source>m/s^2</source>
        <comment>CsvPageUnitMs2</comment>
        <translation>m/s^2</translation>
    </message>
    <message>
        <source>Gal</source>
        <comment>CsvPageUnitGal</comment>
        <translation>Gal</translation>
    </message>
    <message>
        <source>RAV&amp;ELIN Compatible</source>
        <comment>CsvPageRavelin</comment>
        <translation>RAVELIN互換(&amp;E)</translation>
    </message>
    <message>
        <source>Display</source>
        <comment>PageDisplay</comment>
        <translation>表示</translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <comment>DisplayColor</comment>
        <translation>色(&amp;C)</translation>
    </message>
    <message>
        <source>Classic</source>
        <comment>DisplayClassic</comment>
        <translation>クラシック</translation>
    </message>
    <message>
        <source>WindowsXP</source>
        <comment>DisplayWindowsXp</comment>
        <translation>WindowsXP</translation>
    </message>
    <message>
        <source>When it starts next time,
the change of the color becomes effective.</source>
        <comment>ColorAtNextStart</comment>
        <translation>色の変更は、
次回の起動時に有効になります。</translation>
    </message>
    <message>
        <source>Option of measurement condition</source>
        <comment>TitleConditionOption</comment>
        <translation>測定条件のオプション</translation>
    </message>
    <message>
        <source>&amp;Sampling :</source>
        <comment>OptionSampling</comment>
        <translation>サンプリング(&amp;S) :</translation>
    </message>
    <message>
        <source>&amp;Interval :</source>
        <comment>OptionInterval</comment>
        <translation>記録間隔(&amp;I) :</translation>
    </message>
    <message>
        <source>&amp;Threshold :</source>
        <comment>OptionThreshold</comment>
        <translation>しきい値(&amp;T) :</translation>
    </message>
    <message>
        <source>G</source>
        <comment>OptionG</comment>
        <translation>G</translation>
    </message>
    <message>
        <source>Detect &amp;Above T</source>
        <comment>OptionDetectAbove</comment>
        <translation>しきい値超過を検出(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Endless Recording</source>
        <comment>OptionEndless</comment>
        <translation>エンドレス記録(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Buzzer</source>
        <comment>OptionBuzzer</comment>
        <translation>ブザー(&amp;B)</translation>
    </message>
    <message>
        <source>I&amp;D :</source>
        <comment>OptionId</comment>
        <translation>ID(&amp;D) :</translation>
    </message>
    <message>
        <source>Start &amp;option :</source>
        <comment>OptionStartOption</comment>
        <translation>開始条件(&amp;O) :</translation>
    </message>
    <message>
        <source>&amp;Hazard :</source>
        <comment>OptionHazard</comment>
        <translation>危険値(&amp;H) :</translation>
    </message>
    <message>
        <source>Thresholds</source>
        <comment>ThresholdsName</comment>
        <translation>しきい値</translation>
    </message>
    <message>
        <source>Host Number (ID)</source>
        <comment>HostNumberName</comment>
        <translation>ホスト番号(ID)</translation>
    </message>
    <message>
        <source>Start option</source>
        <comment>StartOptionName</comment>
        <translation>開始条件</translation>
    </message>
    <message>
        <source>Host number (ID) %d is in use</source>
        <comment>HostNumberInUse</comment>
        <translation>ホスト番号(ID) %d は使用されています</translation>
    </message>
    <message>
        <source>%s already exists.
Do you want to replace it?</source>
        <comment>AskReplaceFile</comment>
        <translation>%sは既に存在します。
上書きしますか？</translation>
    </message>
    <message>
        <source>%s
Failed to delete.
%s</source>
        <comment>CannotDeleteReason</comment>
        <translation>%s
削除に失敗しました。
%s</translation>
    </message>
    <message>
        <source>%s
Failed to write.
%s</source>
        <comment>FailedToWriteReason</comment>
        <translation>%s
書き込みに失敗しました。
%s</translation>
    </message>
    <message>
        <source>Copyright (C) brennick-works</source>
        <comment>AboutCopyright</comment>
        <translation>Copyright (C) brennick-works</translation>
    </message>
    <message>
        <source>About SKELDON Light</source>
        <comment>AboutTitle</comment>
        <translation>SKELDON Lightについて</translation>
    </message>
    <message>
        <source>X axis</source>
        <comment>NameButtonX</comment>
        <translation>X軸</translation>
    </message>
    <message>
        <source>Y axis</source>
        <comment>NameButtonY</comment>
        <translation>Y軸</translation>
    </message>
    <message>
        <source>Z axis</source>
        <comment>NameButtonZ</comment>
        <translation>Z軸</translation>
    </message>
    <message>
        <source>Resultant</source>
        <comment>NameButtonResultant</comment>
        <translation>合成値</translation>
    </message>
    <message>
        <source>Temperature</source>
        <comment>NameButtonTemperature</comment>
        <translation>温度</translation>
    </message>
    <message>
        <source>Humidity</source>
        <comment>NameButtonHumidity</comment>
        <translation>湿度</translation>
    </message>
    <message>
        <source>Zoom in on an area</source>
        <comment>NameButtonZoomIn</comment>
        <translation>範囲を選んで拡大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <comment>NameButtonZoomOut</comment>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Properties of the chart</source>
        <comment>NameButtonProperties</comment>
        <translation>グラフのプロパティ</translation>
    </message>
    <message>
        <source>Connection to the recorder</source>
        <comment>NameConnection</comment>
        <translation>レコーダーとの接続</translation>
    </message>
    <message>
        <source>Recorder</source>
        <comment>NameRecorder</comment>
        <translation>レコーダー</translation>
    </message>
    <message>
        <source>Connected</source>
        <comment>ValueConnected</comment>
        <translation>接続</translation>
    </message>
    <message>
        <source>Not connected</source>
        <comment>ValueNotConnected</comment>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Measuring conditions</source>
        <comment>NameSummary</comment>
        <translation>測定条件</translation>
    </message>
    <message>
        <source>Measured list</source>
        <comment>NameMeasuredList</comment>
        <translation>測定値リスト</translation>
    </message>
    <message>
        <source>Chart of the measured data</source>
        <comment>NameChart</comment>
        <translation>測定データのグラフ</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <comment>NameScaleGauge</comment>
        <translation>縦軸のスケール</translation>
    </message>
    <message>
        <source>Border between list and chart</source>
        <comment>NameSplitter</comment>
        <translation>リストとグラフの境界</translation>
    </message>
    <message>
        <source>Progress</source>
        <comment>NameProgress</comment>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Up</source>
        <comment>NameSpinUp</comment>
        <translation>増やす</translation>
    </message>
    <message>
        <source>Down</source>
        <comment>NameSpinDown</comment>
        <translation>減らす</translation>
    </message>
    <message>
        <source>Reset</source>
        <comment>NameSpinReset</comment>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Colour sample</source>
        <comment>NameColourSample</comment>
        <translation>色見本</translation>
    </message>
    <message>
        <source>blank</source>
        <comment>ValueBlank</comment>
        <translation>空白</translation>
    </message>
    <message>
        <source>off</source>
        <comment>ValueOff</comment>
        <translation>オフ</translation>
    </message>
    <message>
        <source>on</source>
        <comment>ValueOn</comment>
        <translation>オン</translation>
    </message>
    <message>
        <source>0.%04d seconds</source>
        <comment>ValueSampling</comment>
        <translation>0.%04d秒</translation>
    </message>
    <message>
        <source>0.%04d seconds, trace mode</source>
        <comment>ValueSamplingTrace</comment>
        <translation>0.%04d秒、トレースモード</translation>
    </message>
    <message>
        <source>%d seconds</source>
        <comment>ValueSeconds</comment>
        <translation>%d秒</translation>
    </message>
    <message>
        <source>%d minutes</source>
        <comment>ValueMinutes</comment>
        <translation>%d分</translation>
    </message>
    <message>
        <source>%.1f G</source>
        <comment>ValueAcceleration</comment>
        <translation>%.1f G</translation>
    </message>
    <message>
        <source>%s, up</source>
        <comment>NameFieldUp</comment>
        <translation>%sを増やす</translation>
    </message>
    <message>
        <source>%s, down</source>
        <comment>NameFieldDown</comment>
        <translation>%sを減らす</translation>
    </message>
    <message>
        <source>%s, on or off</source>
        <comment>NameFieldToggle</comment>
        <translation>%sのオン／オフ</translation>
    </message>
    <message>
        <source>Profiles</source>
        <comment>NameProfileList</comment>
        <translation>プロファイルの一覧</translation>
    </message>
    <message>
        <source>Templates</source>
        <comment>NameTemplateList</comment>
        <translation>テンプレートの一覧</translation>
    </message>
    <message>
        <source>Profile name</source>
        <comment>NameProfileName</comment>
        <translation>プロファイル名</translation>
    </message>
    <message>
        <source>Traffic with the recorder</source>
        <comment>NameMonitorLines</comment>
        <translation>レコーダーとの通信</translation>
    </message>
    <message>
        <source>Display in center</source>
        <comment>NameCenterButton</comment>
        <translation>中央に表示</translation>
    </message>
    <message>
        <source>Display all area</source>
        <comment>NameAllAreaButton</comment>
        <translation>全体を表示</translation>
    </message>
    <message>
        <source>Line chart or bar chart</source>
        <comment>NameBarButton</comment>
        <translation>折れ線／棒グラフの切り替え</translation>
    </message>
    <message>
        <source>Elapsed seconds</source>
        <comment>NameElapsed</comment>
        <translation>経過秒数</translation>
    </message>
    <message>
        <source>Seconds in all</source>
        <comment>NameTotal</comment>
        <translation>合計秒数</translation>
    </message>
    <message>
        <source>step %d of %d</source>
        <comment>ValueScaleStep</comment>
        <translation>%d段階目（全%d段階）</translation>
    </message>
    <message>
        <source>no current line</source>
        <comment>ValueNoLine</comment>
        <translation>現在行なし</translation>
    </message>
    <message>
        <source>line %d, %s</source>
        <comment>ValueLineAt</comment>
        <translation>%d行目、%s</translation>
    </message>
    <message>
        <source>, %s %s</source>
        <comment>ValueOfSeries</comment>
        <translation>、%s %s</translation>
    </message>
    <message>
        <source>%.3f G</source>
        <comment>ValueInG</comment>
        <translation>%.3f G</translation>
    </message>
    <message>
        <source>%.4f m/s^2</source>
        <comment>ValueInMs2</comment>
        <translation>%.4f m/s^2</translation>
    </message>
    <message>
        <source>%.2f Gal</source>
        <comment>ValueInGal</comment>
        <translation>%.2f Gal</translation>
    </message>
    <message>
        <source>%.1f C</source>
        <comment>ValueInDegrees</comment>
        <translation>%.1f ℃</translation>
    </message>
    <message>
        <source>%d %%</source>
        <comment>ValueInPercent</comment>
        <translation>%d %%</translation>
    </message>
    <message>
        <source>Waiting for KORVA...</source>
        <comment>OnlineWaiting</comment>
        <translation>KORVAを待っています...</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <comment>WizardBack</comment>
        <translation>&lt; 戻る(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <comment>WizardNext</comment>
        <translation>次へ(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>Finish</source>
        <comment>WizardFinish</comment>
        <translation>完了</translation>
    </message>
    <message>
        <source>Print</source>
        <comment>TitlePrint</comment>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Printer</source>
        <comment>PrintPrinter</comment>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>&amp;Name :</source>
        <comment>PrintPrinterName</comment>
        <translation>プリンター名(&amp;N) :</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <comment>PrintPrinterProperties</comment>
        <translation>プロパティ(&amp;P)...</translation>
    </message>
    <message>
        <source>Number of &amp;copies :</source>
        <comment>PrintCopies</comment>
        <translation>部数(&amp;C) :</translation>
    </message>
    <message>
        <source>First line</source>
        <comment>PrintFirstLine</comment>
        <translation>先頭の行</translation>
    </message>
    <message>
        <source>Last line</source>
        <comment>PrintLastLine</comment>
        <translation>最後の行</translation>
    </message>
    <message>
        <source>PDF file</source>
        <comment>PrintToPdf</comment>
        <translation>PDF ファイル</translation>
    </message>
    <message>
        <source>PDF file(pdf)|*.pdf|All|*.*|</source>
        <comment>PrintFilterPdf</comment>
        <translation>PDF ファイル(pdf)|*.pdf|すべて|*.*|</translation>
    </message>
    <message>
        <source>Failed to print.</source>
        <comment>PrintFailed</comment>
        <translation>印刷に失敗しました。</translation>
    </message>
</context>
</TS>

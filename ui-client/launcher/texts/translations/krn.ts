<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>삭제됨</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>연결 해제</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>파일이 추가됨: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>폴더 변경</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>병합</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>추가됨</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>수정됨</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>이름이 변경됨</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>이동됨</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>복원됨</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>파일이 변경됨: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>파일이 삭제됨: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>파일 이름이 변경됨: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>폴더가 추가됨: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>폴더가 삭제됨: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>최근에 변경된 파일</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>아직 변경된 파일이 없습니다.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>모든 변경 사항 보기</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Corvimo Client 열기</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>웹 브라우저에서 열기</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>동기화 일시 중지</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>1시간 동안 일시 중지</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>내일까지 일시 중지</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>동기화 재개</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>Corvimo Client 정보</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Corvimo Client를 다시 시작할 때까지 파일이 동기화되지 않습니다. 종료하시겠습니까?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>최신 상태</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>동기화 중...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>동기화 중, 파일 %1개 남음</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>%1 업로드 중</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>%1 다운로드 중</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>변경 사항 찾는 중...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>%1까지 일시 중지됨</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>연결되지 않음</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>연결 중...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>확인이 필요합니다</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>일부 파일을 동기화하지 못했습니다.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>설정된 동기화 작업이 없습니다.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>업로드 %1, 다운로드 %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>다음으로 열기...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>폴더에서 보기</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>버전 기록</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>링크 가져오기</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>링크 복사</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>공유...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>이메일로 링크 보내기</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>지금 동기화</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>이 폴더 동기화</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>이 폴더 동기화 중지</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>항상 이 컴퓨터에 유지</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>공간 확보</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>파일 잠금</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>파일 잠금 해제</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>복원</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 변경</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>속성</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>경로 복사</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>새 폴더</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>잘라내기</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>이 이름의 파일 동기화 안 함</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>이 유형의 파일 동기화 안 함</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>%1 님이 잠금</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>“%1”이(가) 잠겼습니다. 다른 사용자는 읽을 수 있지만 변경할 수 없습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>“%1”의 잠금이 해제되었습니다.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>링크를 클립보드에 복사했습니다.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>경로를 클립보드에 복사했습니다.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>%1개 항목 선택됨</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>이 항목은 동기화된 폴더에 있지 않습니다.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>동기화 작업</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>개요</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>동기화</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>백업</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>최근 활동</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>만들기</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>동기화 작업 만들기</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>모두 일시 중지</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>모두 재개</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>“%1”와(과) 일치하는 항목이 없습니다.</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>아직 동기화 작업이 없습니다. 작업을 만들어 이 컴퓨터의 폴더와 Corvimo Server의 폴더를 동일하게 유지하세요.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>이 컴퓨터의 폴더</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Corvimo Server의 폴더</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>수정한 날짜</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>소유자</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>계정</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>마지막 동기화</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>중지됨</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>폴더를 찾을 수 없음</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>동기화 작업 삭제</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>동기화 작업 “%1”을(를) 삭제하시겠습니까? 파일은 이 컴퓨터와 Corvimo Server에 그대로 남아 있습니다.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>선택한 동기화 작업 %1개를 삭제하시겠습니까? 파일은 이 컴퓨터와 Corvimo Server에 그대로 남아 있습니다.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>동기화 작업을 삭제했습니다.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>동기화가 일시 중지되었습니다. 재개하면 변경 사항이 동기화됩니다.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>목록 지우기</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>모든 활동</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>오류만</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1을(를) 업로드했습니다.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1을(를) 다운로드했습니다.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1을(를) 이 컴퓨터에서 삭제했습니다.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1을(를) Corvimo Server에서 삭제했습니다.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>%1의 이름을 %2(으)로 변경했습니다.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1을(를) %2(으)로 이동했습니다.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>%2 님이 파일 %1개를 변경했습니다.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>동기화할 폴더 선택</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Corvimo Server의 폴더와 이 컴퓨터의 폴더를 선택하세요. Corvimo Client가 두 폴더를 동일하게 유지합니다.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>서버 폴더 선택</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>로컬 폴더 선택</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>변경</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>찾아보기...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>새 폴더의 이름</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>“%1” 폴더를 만들지 못했습니다. 다른 이름을 선택하거나 권한을 확인하세요.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>여기에 이름이 “%1”인 빈 폴더 만들기</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>동기화 방향</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>양방향 동기화</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>변경 사항 업로드만</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>변경 사항 다운로드만</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>어느 한쪽의 변경 사항이 다른 쪽으로 복사됩니다.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>이 컴퓨터의 변경 사항은 업로드됩니다. Corvimo Server의 변경 사항은 다운로드되지 않습니다.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Corvimo Server의 변경 사항은 다운로드됩니다. 이 컴퓨터의 변경 사항은 업로드되지 않습니다.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Corvimo Server에서 파일이 삭제되어도 이 컴퓨터에 유지</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>이 컴퓨터에서 파일이 삭제되어도 Corvimo Server에 유지</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>폴더 병합</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>두 폴더에 이미 파일이 있습니다. 처리 방법을 선택하세요.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>“%1” 폴더가 이미 있습니다. Corvimo Server의 폴더와 병합하시겠습니까?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>두 폴더를 병합하고 모든 파일 유지</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>이 컴퓨터의 파일 사용</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Corvimo Server의 파일 사용</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>다른 폴더 선택</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>내용이 다른 파일은 두 개의 사본으로 유지됩니다.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Corvimo Server에는 있지만 이 컴퓨터에는 없는 파일이 삭제됩니다.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>이 컴퓨터에는 있지만 Corvimo Server에는 없는 파일이 휴지통으로 이동됩니다.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>이름이 같은 파일은 대치됩니다. 이 동작은 취소할 수 없습니다.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>두 폴더 비교 중...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>파일 %2개 중 %1개 비교됨</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>이제 두 폴더가 동일합니다.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>이 폴더는 이미 동기화 작업에 포함되어 있습니다. 다른 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>이 폴더는 이미 동기화된 폴더 안에 있습니다. 다른 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>이 폴더에는 이미 동기화된 폴더가 들어 있습니다. 다른 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>시스템 폴더는 동기화할 수 없습니다. 다른 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>디스크 전체는 동기화할 수 없습니다. 디스크에 있는 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>이동식 디스크의 폴더는 동기화할 수 없습니다.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>\\server\share와 같은 네트워크 폴더는 동기화할 수 없습니다. 이 컴퓨터의 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>이 폴더에 쓸 수 있는 권한이 없습니다. 다른 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>이 폴더는 암호화되어 잠겨 있습니다. 먼저 Corvimo Server에서 잠금을 해제하세요.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>폴더를 찾을 수 없습니다. 이동되었거나 삭제되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>이 디스크의 파일 시스템은 지원되지 않습니다. 지원되는 파일 시스템의 디스크를 사용하세요.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>동기화 작업의 최대 개수(%1개)에 도달했습니다. 더 이상 필요하지 않은 작업을 삭제하세요.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>선택적 동기화</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>이 컴퓨터에 동기화할 항목을 선택하세요. 선택을 해제한 폴더는 이 컴퓨터에서 제거되지만 Corvimo Server에는 그대로 남아 있습니다.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>파일 필터</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>모두 선택 해제</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>새 폴더 자동으로 동기화</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>불러오는 중...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>폴더 목록을 불러오지 못했습니다. 연결을 확인한 후 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>폴더 %1개가 이 컴퓨터에서 제거됩니다. Corvimo Server에는 그대로 남아 있습니다.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>이 컴퓨터에서 폴더를 제거하시겠습니까?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>이 폴더의 일부 파일은 아직 업로드되지 않아 손실될 수 있습니다. 먼저 동기화하세요.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>선택됨: %1/%2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>다음 크기보다 큰 파일 동기화 안 함</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>다음 확장자의 파일 동기화 안 함</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>다음 이름의 파일 동기화 안 함</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>확장자 추가</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>이름 추가</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>이름이 점으로 시작하는 파일 및 폴더 동기화</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>일반적인 프로그램의 임시 파일은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>기본값 복원</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>기본 필터로 되돌리시겠습니까?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>확장자를 입력하세요(예: “iso”).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>“%1”이(가) 이미 목록에 있습니다.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>이름에는 다음 문자를 사용할 수 없습니다: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>%1에서 %2 사이의 크기를 입력하세요.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>필터로 인해 동기화되지 않음</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>선택 사항을 저장했습니다. Corvimo Client가 적용하는 중입니다.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>문서 파일</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>이미지 파일</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>비디오 파일</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>음악 파일</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>압축 파일</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>기타 파일</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>“%1”의 버전</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>현재 버전</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>이전 버전</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>변경한 사람</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>기기</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>다운로드</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>미리보기</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>이 파일에는 이전 버전이 없습니다.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>버전을 보려면 파일을 선택하세요.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>버전 복원</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>현재 버전을 %1의 버전으로 대치하시겠습니까?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>현재 버전은 기록에 유지됩니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>“%1”을(를) %2의 버전으로 복원했습니다.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>버전을 복원하지 못했습니다. 나중에 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>사본으로 복원</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>다른 이름으로 버전 저장</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>버전을 “%1”에 저장했습니다.</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>이 버전을 삭제하시겠습니까? 삭제하면 되돌릴 수 없습니다.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>버전을 삭제하지 못했습니다.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>자동 삭제로부터 보호됨</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Corvimo Server는 파일당 최대 %1개의 버전을 유지합니다.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>이 폴더의 버전 기록이 꺼져 있습니다. 켜려면 관리자에게 문의하세요.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>이 유형의 파일은 버전이 유지되지 않습니다.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>삭제된 파일</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>삭제된 파일 보기</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>%1에 삭제됨</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>선택한 항목 %1개를 복원하시겠습니까?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>항목 %1개를 복원했습니다.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>삭제된 파일이 없습니다.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>특정 시점으로 되돌리기</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>날짜 및 시간 선택</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>비교</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>공유</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>“%1” 공유</translation>
    </message>
    <message>
        <source>People</source>
        <translation>사용자</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>링크</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>사용자를 초대하거나 이 항목의 링크를 만드세요.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>사용자 초대</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>이름 또는 이메일 주소 입력</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>초대 보내기</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>%1 님에게 초대를 보냈습니다.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>초대를 보내지 못했습니다. 이메일 주소를 확인하세요.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>메시지(선택 사항)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>권한</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>보기 가능</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>편집 가능</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>관리 가능</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>업로드만 가능</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>접근 권한 없음</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>%1 님의 권한을 변경했습니다.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>이 항목을 공유할 권한이 없습니다. 소유자에게 문의하세요.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>나와 공유된 항목</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>내가 공유한 항목</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>%1명과 공유됨</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>이 항목은 공유되지 않았습니다.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>공유 폴더에서 나가기</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>공유 폴더 “%1”에서 나가시겠습니까? 이 컴퓨터에서 제거됩니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>“%1”이(가) 더 이상 나와 공유되지 않습니다.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 님이 “%2”을(를) 나와 공유했습니다.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>그룹</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>이 서버의 모든 사용자</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>링크 설정</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>링크 만들기</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>링크를 만드는 중...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>링크 삭제</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>이 링크를 삭제하시겠습니까? 링크를 가진 사용자가 더 이상 항목을 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>링크가 있는 모든 사용자</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>계정이 있는 사용자만</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>암호로 보호</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>암호는 %1자 이상이어야 합니다.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>링크의 암호를 입력하세요.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>링크 만료일</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>만료되지 않음</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>오늘 이후의 날짜를 선택하세요.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>이 링크는 만료되었습니다.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>허용되는 다운로드 횟수</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>다운로드 %1회 남음</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>다운로드 허용</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>업로드 허용</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>링크를 만들지 못했습니다. 나중에 다시 시도하세요.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>관리자가 이 폴더의 링크를 껐습니다.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>파일 요청</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>링크가 있는 사용자는 이 폴더에 파일을 업로드할 수 있지만 폴더의 내용은 볼 수 없습니다.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>QR 코드 보기</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>충돌</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>“%1”이(가) 두 곳에서 동시에 변경되었습니다.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>파일 %1개가 두 곳에서 동시에 변경되었습니다.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>유지할 버전을 선택하세요. 다른 버전은 충돌 사본으로 저장됩니다.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>이 컴퓨터의 버전 유지</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Corvimo Server의 버전 유지</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>두 버전 모두 유지</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>최신 버전 유지</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>매번 묻기</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>모든 충돌에 적용</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>%1의 충돌 사본 %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>이 컴퓨터에 있음</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>Corvimo Server에 있음</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>%1 님이 %2에 변경함</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>파일이 두 곳에서 변경되었을 때</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>대소문자만 다른 이름</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>“%1”와(과) “%2”은(는) 대소문자만 다릅니다. 둘 중 하나의 이름을 변경하세요.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>충돌이 없습니다.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>충돌이 해결되었습니다.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>파일이 열려 있어 충돌을 해결하지 못했습니다. 파일을 닫고 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>해결</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>나중에 결정</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>두 파일 모두 열기</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>건너뛰기</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>“%1”을(를) 삭제했지만 Corvimo Server에서 변경되었습니다. 변경된 파일을 유지했습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>“%1”이(가) Corvimo Server에서 삭제되었지만 이 컴퓨터에서 변경되었습니다. 이 컴퓨터의 파일을 유지했습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>“%1”은(는) 한쪽에서는 파일이고 다른 쪽에서는 폴더입니다. 둘 중 하나의 이름을 변경하세요.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>충돌 사본</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>충돌 사본 삭제</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>충돌 사본 %1개를 삭제하시겠습니까? 삭제하면 되돌릴 수 없습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>“%1”이(가) 다른 프로그램에서 열려 있으며 닫으면 동기화됩니다.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>서버 주소</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>호스트 이름, IP 주소 또는 Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>연결 암호화</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>암호화하지 않으면 네트워크의 다른 사용자가 파일과 암호를 읽을 수 있습니다.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>연결 끊기</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>다시 연결</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>연결 테스트</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>연결을 테스트하는 중...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>연결이 정상입니다.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>연결할 수 없습니다. 주소와 포트를 확인하세요.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>%1에 연결됨</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>%1와(과)의 연결이 끊어졌습니다. %2초 후 Corvimo Client가 다시 시도합니다.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>%1와(과)의 연결이 복구되었습니다.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>네트워크 연결을 기다리는 중</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>종량제 네트워크에서는 동기화 안 함</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>종량제 네트워크를 사용하고 있어 동기화가 일시 중지되었습니다.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>로컬 네트워크를 통해 연결됨</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>인터넷을 통해 연결됨</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>중계 서버를 통해 연결됨</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>중계 서버는 직접 연결보다 느립니다.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>이 네트워크에서 서버 찾기</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>서버를 찾는 중...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>이 네트워크에서 서버를 찾을 수 없습니다. 서버 주소를 직접 입력하세요.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>서버 %1대를 찾음</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>서버 “%1”을(를) 찾을 수 없습니다. 주소의 철자를 확인하세요.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>서버가 연결을 거부했습니다. Corvimo Server가 실행 중인지 확인하세요.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>서버가 제시간에 응답하지 않았습니다. 나중에 다시 시도하세요.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>이 컴퓨터가 네트워크에 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>1에서 65535 사이의 포트를 입력하세요.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>서버 주소를 입력하세요.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Corvimo ID “%1”이(가) 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>이 Corvimo ID의 서버가 오프라인입니다. 전원이 켜져 있는지 확인하세요.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>이 서버에 Corvimo Server가 설치되어 있지 않거나 실행 중이 아닙니다.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>서버를 점검하는 중입니다. 점검이 끝나면 동기화가 계속됩니다.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server의 버전이 너무 낮아 이 클라이언트를 사용할 수 없습니다. 관리자에게 버전 %1 이상으로 업데이트하도록 요청하세요.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>이 클라이언트의 버전이 너무 낮아 Corvimo Server를 사용할 수 없습니다. 버전 %1 이상으로 업데이트하세요.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>서버에 연결된 클라이언트가 너무 많습니다. 나중에 다시 시도하세요.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>실패한 시도가 너무 많아 이 컴퓨터가 차단되었습니다. 관리자에게 차단 해제를 요청하세요.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>방화벽이 Corvimo Client를 차단하고 있을 수 있습니다. Corvimo Client가 포트 %1을(를) 사용하도록 허용하세요.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>보안 연결을 설정하지 못했습니다: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>알 수 없는 오류가 발생했습니다(코드 %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>연결 편집</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>연결 제거</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>%1에 대한 연결을 제거하시겠습니까? 동기화 작업은 삭제되지만 파일은 그대로 남아 있습니다.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>파일 %1개가 아직 업로드되지 않았습니다.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>고급</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>마지막 연결: %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>프록시</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>네트워크에서 인터넷에 연결하는 데 프록시 서버가 필요하면 프록시 서버를 사용하세요.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>프록시 사용 안 함</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>이 컴퓨터의 프록시 설정 사용</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>프록시 직접 설정</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>프록시 유형</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>프록시 주소</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>프록시에 사용자 이름과 암호 필요</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>로컬 주소에는 프록시 사용 안 함</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>다음 주소에는 프록시 사용 안 함</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>프록시 테스트</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>프록시가 정상적으로 작동합니다.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>프록시에 로그인</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>프록시 %1에서 사용자 이름과 암호를 요구합니다.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>프록시에서 사용자 이름 또는 암호를 받아들이지 않았습니다.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>프록시 %1에 연결할 수 없습니다. 주소와 포트를 확인하세요.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>프록시가 %1에 대한 연결을 허용하지 않습니다.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>이 컴퓨터의 프록시 설정을 읽지 못했습니다.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>프록시 주소를 입력하세요.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>인증서</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>신뢰할 수 없는 인증서입니다</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>%1의 인증서는 알려진 인증 기관에서 발급되지 않았습니다. 누군가가 서버를 사칭하고 있을 수 있습니다.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>서버가 자체 서명한 인증서를 사용합니다.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>인증서가 %1에 만료되었습니다.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>인증서는 %1 이전에는 유효하지 않습니다. 이 컴퓨터의 시계를 확인하세요.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>인증서가 %2이(가) 아니라 %1에 대해 발급되었습니다.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>발급한 인증 기관에서 인증서를 해지했습니다.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>인증서가 변경되었습니다</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>%1의 인증서가 이전에 사용하던 인증서와 다릅니다. 인증서가 갱신되었는지 관리자에게 문의하세요.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>인증서가 더 이상 안전하지 않은 알고리즘을 사용합니다.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>이 인증서 신뢰</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>이 인증서 항상 신뢰</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>이번만 신뢰</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>연결 안 함</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>인증서 보기</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>발급 대상</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>발급자</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>유효 기간 시작</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>만료일</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>일련번호</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>지문</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>서명 알고리즘</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>키 길이</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>인증서 내보내기</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>인증서를 “%1”에 저장했습니다.</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>인증서 가져오기</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>파일에 유효한 인증서가 없습니다.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>신뢰할 수 있는 인증서에서 %1의 인증서를 제거하시겠습니까?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>저장 공간</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%2 중 %1 사용됨</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 사용 가능</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>무제한</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Corvimo Server의 저장 공간</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>이 컴퓨터의 저장 공간</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>파일 유형별 저장 공간</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>폴더별 저장 공간</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>이전 버전이 사용하는 저장 공간</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>삭제된 파일이 사용하는 저장 공간</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>휴지통 비우기</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>휴지통을 비우시겠습니까? 휴지통의 파일은 되돌릴 수 없습니다.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>휴지통을 비웠습니다. %1의 공간이 확보되었습니다.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>계산 중...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>저장 공간이 거의 찼습니다. %1만 남아 있습니다.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>저장 공간이 가득 찼습니다</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>파일을 일부 삭제하거나 관리자에게 저장 공간을 추가로 요청할 때까지 새 파일을 업로드할 수 없습니다.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>“%1” 폴더가 할당량에 도달했습니다. 이 폴더에 새 파일을 업로드할 수 없습니다.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Corvimo Server의 볼륨이 가득 찼습니다. 관리자에게 공간을 확보하도록 요청하세요.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>“%1”이(가) 남은 저장 공간(%2)보다 큽니다.</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>디스크 공간이 얼마 남지 않았습니다</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>디스크 “%2”에 %1만 남아 있습니다. 디스크가 가득 차면 동기화가 중지됩니다.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>디스크 공간 부족</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>디스크 “%1”에 공간이 부족합니다. %2 이상을 확보할 때까지 동기화가 일시 중지됩니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>“%1”에 %2의 디스크 공간이 필요하여 다운로드하지 않았습니다.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>선택적 동기화를 사용하거나 파일을 온라인 전용으로 두어 공간을 확보할 수 있습니다.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>저장 공간 설정 열기</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>비워 둘 최소 디스크 공간</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>남은 공간이 이보다 적으면 다운로드가 일시 중지됩니다.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>“%1” 폴더가 있는 디스크가 연결되어 있지 않습니다. 동기화를 계속하려면 디스크를 연결하세요.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>디스크 “%1”이(가) 읽기 전용입니다. Corvimo Server의 변경 사항을 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>임시 파일을 위한 공간이 부족합니다. %1 이상을 확보하세요.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>임시 파일</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>임시 파일 삭제</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>임시 파일을 삭제했습니다(%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>다시 확인</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>무시</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>사용됨</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>가장 큰 파일</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>더 이상 필요하지 않은 파일을 삭제하거나 이동하세요.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>이번 달에 저장 공간 사용량이 %1 늘었습니다.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>이 속도라면 %1에 저장 공간이 가득 찹니다.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>저장 공간 추가 요청</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>관리자에게 요청을 보냈습니다.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>요청에 대한 답변을 기다리고 있습니다.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>그룹 “%1”의 할당량을 모두 사용했습니다.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 사용 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>소프트웨어 업데이트</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>업데이트 확인</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>업데이트 확인 중...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>최신 버전을 사용하고 있습니다.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Corvimo Client 버전 %1을(를) 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>다운로드 및 설치</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>나중에 알림</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>이 버전 건너뛰기</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>다운로드 중...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>업데이트가 준비되었습니다. 설치하려면 Corvimo Client를 재시작하세요.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>지금 재시작</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>업데이트를 설치하지 못했습니다. 현재 버전을 계속 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client가 업데이트를 확인하지 못했습니다.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>릴리스 노트</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>업데이트 자동으로 설치</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 초기화 중...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>이전 버전에서 설정을 가져오는 중입니다.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>설정을 가져왔습니다. 중단한 부분부터 계속할 수 있습니다.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>이전 버전의 일부 설정을 가져오지 못했습니다. 동기화 작업을 확인하세요.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>업데이트에 %1의 디스크 공간이 필요합니다.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>이 버전은 더 이상 지원되지 않습니다. 동기화를 계속하려면 업데이트를 설치하세요.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>대역폭</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>업로드 속도</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>다운로드 속도</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>제한 속도</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>자동 조절</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client가 네트워크를 사용하는 다른 프로그램을 위해 여유를 남겨 둡니다.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>스케줄</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>제한을 적용할 시간대를 선택하세요.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>하루 종일</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>근무 시간</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>야간</translation>
    </message>
    <message>
        <source>From</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>To</source>
        <translation>끝</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>동기화 안 함</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>최대 속도</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>제한된 속도</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>스케줄 지우기</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>0보다 큰 속도를 입력하세요.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>%1에서 %2 사이의 속도를 입력하세요.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>시작 시간은 끝 시간보다 빨라야 합니다.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>관리자가 속도를 %1(으)로 제한했습니다.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>동시에 전송할 파일 수</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>로컬 네트워크에서는 속도 제한 안 함</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>현재 속도</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>평균 속도</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>오늘 전송량</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>이번 달 전송량</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Corvimo Client에서 받을 알림을 선택하세요.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>동기화가 완료되었을 때</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>파일을 동기화할 수 없을 때</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>다른 사용자가 나와 항목을 공유할 때</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>다른 사용자가 내 파일에 댓글을 남길 때</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>저장 공간이 거의 찼을 때</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>백업이 완료되거나 실패했을 때</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>업데이트를 사용할 수 있을 때</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>연결이 끊어졌을 때</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>사운드 재생</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>방해금지 모드</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>방해금지 시간</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>%1까지 알림 없음</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>발표 중에는 방해하지 않기</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>알림에 파일 이름 표시</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>이 컴퓨터의 시스템 설정에서 알림이 꺼져 있습니다.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>시스템 설정 열기</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>모두 지우기</translation>
    </message>
    <message>
        <source>View</source>
        <translation>보기</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>읽음으로 표시</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>알림 센터</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>알림이 없습니다.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>새로운 알림 %1개</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>모든 파일이 최신 상태입니다.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>첫 동기화가 완료되었습니다. 이제 이 컴퓨터에 파일 %1개가 있습니다.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>많은 파일이 삭제되었습니다</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>“%2”에서 파일 %1개가 삭제되었습니다. 의도한 것이 아니라면 복원하세요.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>짧은 시간에 파일 %1개가 변경되었습니다. 직접 변경하지 않았다면 동기화를 일시 중지하고 컴퓨터에 악성 소프트웨어가 있는지 확인하세요.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>“%1” 폴더가 이동되었습니다. Corvimo Client에 현재 위치를 알려 주세요.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 님이 “%2”에 댓글을 남겼습니다.</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>동기화 문제</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>이 파일을 동기화하지 못했습니다. 원인이 해결되면 Corvimo Client가 다시 시도합니다.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>문제 %1개</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>문제가 없습니다.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>이유</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>모두 다시 시도</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>세부사항</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>세부사항 복사</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>문제 신고</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>세부사항을 클립보드에 복사했습니다.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>오류 코드: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>다른 프로그램에서 파일을 사용하고 있습니다. 파일을 동기화하려면 해당 프로그램에서 파일을 닫으세요.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>%1 님이 파일을 잠갔습니다.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>파일이 동기화되기 전에 삭제되었습니다.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>업로드하는 동안 파일이 변경되었습니다. 다시 업로드됩니다.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>전송 중에 파일이 손상되었습니다. 다시 전송됩니다.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>파일을 읽을 수 없습니다. 권한을 확인하세요.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>파일에 쓸 수 없습니다. 권한을 확인하세요.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>파일이 제한 크기인 %1보다 큽니다.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>파일이 너무 커서 이 디스크의 파일 시스템에 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>파일이 암호화되어 있어 이 컴퓨터에서 열 수 없습니다.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>Corvimo Server의 바이러스 검사 프로그램이 파일을 차단했습니다.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>이 컴퓨터의 바이러스 검사 프로그램이 파일을 차단했습니다.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Corvimo Server에서는 이 유형의 파일이 허용되지 않습니다.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>장치, 파이프 및 소켓은 동기화할 수 없습니다.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>동기화된 폴더의 외부를 가리키는 심볼릭 링크는 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>가상본 “%1”이(가) 동기화되지 않은 항목을 가리킵니다.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>이름이 너무 깁니다. %1자 이하로 입력하세요.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>경로가 너무 깁니다. 폴더 이름을 줄이세요.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>이름에 허용되지 않는 문자가 있습니다: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>이름 “%1”은(는) 시스템에서 예약되어 있습니다.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>이름이 공백이나 마침표로 끝납니다. 항목의 이름을 변경하세요.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>이름에 읽을 수 없는 문자가 있습니다. 항목의 이름을 변경하세요.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>이 폴더에 이름이 “%1”인 항목이 이미 있습니다.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>이름을 입력하세요.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>“%1” 폴더를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>동기화되지 않은 파일이 들어 있어 폴더를 삭제하지 않았습니다.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>폴더를 만들지 못했습니다.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>폴더를 삭제하지 못했습니다.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>이 폴더를 변경할 권한이 없습니다.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>이 폴더를 열 권한이 없습니다.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>폴더에 항목이 %1개 넘게 들어 있습니다. 일부를 하위 폴더로 이동하세요.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>폴더의 단계가 너무 깊습니다.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>서버가 사용 중입니다. 몇 분 후 Corvimo Client가 다시 시도합니다.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server에서 내부 오류가 보고되었습니다. 관리자에게 로그 확인을 요청하세요.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>현재 Corvimo Server에서 변경 사항을 받지 않습니다.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>이 폴더가 있는 볼륨을 Corvimo Server에서 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>공유 폴더가 Corvimo Server에서 제거되었습니다.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>이 공유 폴더의 동기화가 꺼졌습니다.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>서버가 Corvimo Client에서 인식할 수 없는 응답을 보냈습니다.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>세션이 종료되었습니다. 다시 로그인하세요.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Corvimo Server의 데이터가 재설정되었습니다. 동기화 작업을 다시 설정하세요.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>“%1”을(를) 업로드하지 못했습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>“%1”을(를) 업로드하지 못했습니다: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>“%1”을(를) 다운로드하지 못했습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>“%1”을(를) 다운로드하지 못했습니다: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>“%1”을(를) 삭제하지 못했습니다: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>“%1”의 이름을 변경하지 못했습니다: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>“%1”을(를) 이동하지 못했습니다: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>“%1”을(를) 복원하지 못했습니다: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>권한이 거부됨</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>디스크에서 읽기 또는 쓰기 오류가 발생했습니다. 디스크에 결함이 있는지 확인하세요.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>파일을 쓰는 동안 디스크가 제거되었습니다.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>메모리가 부족합니다. 다른 프로그램을 닫고 다시 시도하세요.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>동기화 데이터베이스가 손상되어 다시 구축합니다. 시간이 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>다른 프로그램에서 동기화 데이터베이스를 사용하고 있습니다.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>동기화 데이터베이스를 다시 구축하는 중...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>동기화 데이터베이스를 다시 구축했습니다.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>설정을 읽지 못했습니다. 기본값을 사용합니다.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>설정을 저장하지 못했습니다.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>시스템에서 감시하는 폴더가 너무 많아 일부 폴더의 변경 사항을 늦게 감지할 수 있습니다.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>이 컴퓨터의 시계가 서버의 시계와 %1분 넘게 차이 납니다. 이 컴퓨터의 시간을 올바르게 설정하세요.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Corvimo Server에서 지원하지 않는 동작입니다.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>동작이 취소되었습니다.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>동작이 너무 오래 걸려 중지되었습니다.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>알 수 없는 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Corvimo Client를 시작하지 못했습니다. 이 컴퓨터를 재시동한 후 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client가 이미 실행 중입니다.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>Corvimo Client의 일부 구성 요소가 누락되었습니다. 클라이언트를 다시 설치하세요.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>다른 프로그램이 상태 아이콘 자리를 모두 사용하고 있어 상태 아이콘을 표시할 수 없습니다.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client가 이 폴더를 읽으려면 권한이 필요합니다. 이 컴퓨터의 개인정보 보호 설정에서 허용하세요.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>문제가 계속되면 Corvimo Client를 재시작하세요.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>문제가 계속되면 관리자에게 문의하세요.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>문제가 계속되면 지원팀에 문의하여 오류 코드를 알려 주세요.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>나머지 파일을 계속 처리하시겠습니까?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>로그인</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>로그아웃</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Corvimo Server에 로그인</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>암호 표시</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>암호를 잊으셨습니까?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>로그인 상태 유지</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>로그인 중...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>%1(으)로 로그인됨</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>로그아웃되었습니다.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>로그아웃하시겠습니까? 다시 로그인할 때까지 동기화가 중지됩니다.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>브라우저로 로그인</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>브라우저에서 계속 진행한 다음 여기로 돌아오세요.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>브라우저를 열지 못했습니다. 다음 주소를 직접 여세요: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>도메인</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>계정이 도메인에 속해 있으면 사용자 이름을 도메인\사용자 형식으로 입력하세요.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>계정 추가</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>계정 전환</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>계정 제거</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>이 컴퓨터에서 계정 %1을(를) 제거하시겠습니까? 파일은 이 컴퓨터와 Corvimo Server에 그대로 남아 있습니다.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>이메일 주소</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>전체 이름</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>암호 변경</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>현재 암호</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>새로운 암호</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>새로운 암호 다시 입력</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>암호를 변경했습니다.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>관리자가 암호 변경을 요구합니다.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>암호가 %1일 후 만료됩니다.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>두 암호가 일치하지 않습니다.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>새로운 암호는 현재 암호와 달라야 합니다.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>사용자 이름을 입력하세요.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>암호를 입력하세요.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>사용자 이름 또는 암호가 잘못되었습니다.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>사용자 이름 또는 암호가 잘못되었습니다. %1번 더 시도할 수 있습니다.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>계정이 비활성화되었습니다. 관리자에게 문의하세요.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>계정이 만료되었습니다. 관리자에게 문의하세요.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Corvimo Server를 사용할 권한이 없습니다. 관리자에게 문의하세요.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>암호가 만료되었습니다. Corvimo Server에서 변경하세요.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>홈 폴더를 사용할 수 없습니다. 관리자에게 홈 서비스를 켜도록 요청하세요.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>게스트 계정은 동기화에 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Corvimo Server의 모든 라이선스가 사용 중입니다.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>이 컴퓨터의 이름</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>연결된 기기</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>“%1”의 연결을 해제하시겠습니까? 해당 기기가 로그아웃되고 동기화가 중지됩니다.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>%1 님이 이 컴퓨터의 연결을 해제했습니다. 동기화를 계속하려면 다시 로그인하세요.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>이 컴퓨터</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>기기의 파일도 삭제</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>2단계 인증</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>인증 앱에 표시되는 코드를 입력하세요.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>인증 코드</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6자리 숫자</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>인증</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>인증 중...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>이 기기 신뢰</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>%1일 동안 이 컴퓨터에서 다시 묻지 않기</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>휴대폰을 분실하셨습니까?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>이메일로 코드 보내기</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>%1(으)로 코드를 보냈습니다. 10분 동안 유효합니다.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>코드를 보내지 못했습니다. 관리자에게 도움을 요청하세요.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>복구 코드 사용</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>적어 둔 복구 코드 중 하나를 입력하세요. 각 코드는 한 번만 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>복구 코드가 %1개 남아 있습니다.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>보안 키 사용</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>보안 키를 삽입하고 터치하세요.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>보안 키를 인식할 수 없습니다. 다른 키를 사용해 보세요.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>휴대폰에서 로그인 승인</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>승인을 기다리는 중...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>휴대폰에서 숫자 %1을(를) 선택하세요.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>휴대폰에서 로그인이 거부되었습니다.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>요청이 만료되었습니다. 다시 보내세요.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>다시 보내기</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>다른 방법 시도</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>코드를 입력하세요.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>코드가 잘못되었습니다. 휴대폰의 시간이 맞는지 확인하세요.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>이미 사용한 코드입니다. 다음 코드를 기다리세요.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>잘못된 코드를 너무 많이 입력했습니다. %1분 기다린 후 다시 시도하세요.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>관리자가 2단계 인증을 요구합니다. 먼저 Corvimo Server에서 설정하세요.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>2단계 인증 설정</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>인증 앱으로 이 코드를 스캔하세요.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>2단계 인증이 켜져 있습니다.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>백업 작업</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>백업 작업은 이 컴퓨터의 폴더를 Corvimo Server에 복사하고 이전 버전을 유지합니다.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>백업 작업 만들기</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>백업 작업 편집</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>백업 작업 삭제</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>백업 작업 “%1”을(를) 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Corvimo Server에 백업된 파일도 삭제</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>작업 이름</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>이 이름의 작업이 이미 있습니다.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>백업할 항목</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>폴더 추가</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>백업할 폴더를 하나 이상 선택하세요.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>“%1” 폴더가 더 이상 존재하지 않아 백업에서 제외됩니다.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>데스크탑</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>음악</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>비디오</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>다운로드</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>외장 디스크</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>백업을 저장할 위치</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>이 폴더에는 이미 다른 컴퓨터의 백업이 있습니다.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>백업할 시기</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>파일이 변경될 때마다</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>스케줄에 따라</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>직접 시작할 때만</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>매일</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>매주</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>매월</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>매시간</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>시각: %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>다음 요일에</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>외장 디스크가 연결될 때</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>백업을 위해 이 컴퓨터 깨우기</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>지금 백업</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>백업 중지</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>백업을 중지하시겠습니까? 이미 백업된 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>백업 중...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>백업 중, 파일 %1/%2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>백업이 완료되었습니다.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>마지막 백업: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>다음 백업: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>아직 백업되지 않음</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>백업이 완료되었지만 파일 %1개를 읽지 못했습니다.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>백업 실패: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>%1에 예정된 백업을 놓쳤습니다. 지금 시작합니다.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>이 컴퓨터가 %1일 동안 백업되지 않았습니다.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>버전 유지 기간</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>모든 버전 유지</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>최근 버전 %1개 유지</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>버전을 %1일 동안 유지</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>오래된 버전일수록 더 적게 유지</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>백업 암호화</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>암호화 키</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>키를 안전한 장소에 보관하세요. 키가 없으면 백업을 복원할 수 없습니다.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>암호화 키가 잘못되었습니다.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>파일 복원</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>복원할 파일과 저장할 위치를 선택하세요.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>원래 위치로 복원</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>기존 파일 대치</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>복원 중, 파일 %1/%2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>모든 파일을 복원했습니다.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>파일 %1개를 복원했고 파일 %2개는 복원하지 못했습니다.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>백업 검증</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>백업이 온전합니다.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>백업의 파일 %1개가 손상되었습니다. 다시 백업됩니다.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Corvimo Client</source>
        <translation>Corvimo Client</translation>
    </message>
    <message>
        <source>Corvimo Server</source>
        <translation>Corvimo Server</translation>
    </message>
    <message>
        <source>Corvimo ID</source>
        <translation>Corvimo ID</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>버전 %1(빌드 %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>서버 버전</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>모든 권리 보유.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>사용권 계약</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>개인정보 보호 정책</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>타사 소프트웨어</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>웹사이트</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>지원팀에 문의</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>의견 보내기</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Corvimo Client를 사용해 주셔서 감사합니다.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>세부 수준</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>자세한 로그를 기록하면 클라이언트가 느려집니다. 작업이 끝나면 보통 수준으로 되돌리세요.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>로그 폴더 열기</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>로그 저장</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>로그를 “%1”에 저장했습니다.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>로그를 저장하지 못했습니다.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>로그 지우기</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>로그를 지우시겠습니까?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>지원팀에 로그 보내기</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>로그를 보내는 중...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>로그를 보냈습니다. 보고서 번호는 %1입니다.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>로그를 보내지 못했습니다. 로그를 저장하여 이메일로 보내세요.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>로그에는 파일과 폴더의 이름이 포함되지만 내용은 포함되지 않습니다.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>익명의 사용 데이터를 보내 Corvimo Client 개선에 참여</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>이 컴퓨터에 로그인할 때 Corvimo Client 시작</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>파일 및 폴더에 상태 아이콘 표시</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>컨텍스트 메뉴에 Corvimo Client 표시</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>사이드바에 동기화된 폴더 표시</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>메뉴 막대에 아이콘 표시</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>시스템과 동일</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>언어는 Corvimo Client를 재시작하면 변경됩니다.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>화면 모드</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>라이트</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>다크</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>텍스트 크기</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>파일을 동기화하는 동안 잠자기 안 함</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Corvimo Server에서 삭제된 파일을 휴지통으로 이동</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>많은 파일이 삭제되기 전에 경고</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>모든 설정을 재설정하시겠습니까? 동기화 작업은 그대로 유지됩니다.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>이 설정은 관리자가 관리합니다.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>설정을 저장했습니다.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>변경 사항을 버리시겠습니까?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>버리기</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>주문형 파일</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>모든 파일이 이 컴퓨터에 표시되지만 파일을 열 때만 다운로드됩니다.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>주문형 파일 켜기</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>“%1”에 대해 주문형 파일을 켜시겠습니까? 이미 이 컴퓨터에 있는 파일은 그대로 남아 있습니다.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>주문형 파일이 켜져 있습니다.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>주문형 파일 끄기</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>주문형 파일을 끄시겠습니까? 이 폴더의 모든 파일이 다운로드됩니다(%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>모든 파일을 다운로드할 공간이 부족합니다. %1이(가) 더 필요합니다.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>온라인 전용</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>항상 이 컴퓨터에 있음</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>일부가 이 컴퓨터에 있음</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>파일 %1개가 온라인 전용으로 전환됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>디스크 공간 %1을(를) 확보했습니다.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>아직 업로드되지 않은 파일은 이 컴퓨터에 남아 있습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>“%1”이(가) 열려 있어 이 컴퓨터에 남아 있습니다.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>자동으로 공간 확보</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>%1일 동안 열지 않은 파일을 온라인 전용으로 전환</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>디스크 공간이 부족할 때만</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1이(가) “%2”을(를) 다운로드하고 있습니다.</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>이 프로그램의 다운로드 차단</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>프로그램이 온라인 전용 파일을 많이 열고 있습니다. 허용하시겠습니까?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>“%1”은(는) 온라인 전용 파일이고 Corvimo Client가 연결되어 있지 않아 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>온라인 전용 파일을 열려면 Corvimo Client를 시작하세요.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>이 버전의 시스템에서는 주문형 파일이 지원되지 않습니다.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>이 디스크에서는 주문형 파일이 지원되지 않습니다.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>주문형 파일을 사용하려면 시스템 설정에서 파일 제공자 확장 프로그램을 허용하세요.</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>온라인 전용 파일의 미리보기 표시</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>온라인 전용 파일의 내용은 이 컴퓨터에서 검색할 수 없습니다.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>허용</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>차단</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Corvimo Client에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>몇 단계만 거쳐 Corvimo Client를 설정하면 모든 컴퓨터에서 파일을 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>시작하기</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>%2단계 중 %1단계</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>서버에 연결</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Corvimo Server의 주소를 입력하고 계정으로 로그인하세요.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>무엇을 하시겠습니까?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>파일 동기화</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>이 컴퓨터와 Corvimo Server의 파일을 동일하게 유지합니다.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>이 컴퓨터 백업</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>파일을 Corvimo Server에 복사하여 손실되지 않도록 보호합니다.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>파일이 “%1”에 동기화됩니다.</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>팀 폴더</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>이 컴퓨터에서 사용할 팀 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>구성원으로 속한 팀 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>동기화 옵션</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>모든 파일 동기화</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client가 알림을 표시하고 폴더를 읽으려면 권한이 필요합니다.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>시작하기 전에 선택 사항을 확인하세요.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>파일 %1개(%2)가 다운로드됩니다.</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>모든 준비가 완료되었습니다</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client가 파일을 동기화하고 있습니다. 메뉴 막대에서 찾을 수 있습니다.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>둘러보기</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>메뉴 막대의 아이콘을 클릭하면 진행 상황을 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>파일을 오른쪽 클릭하면 공유하거나 버전을 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>파일의 아이콘은 동기화되었는지 여부를 보여 줍니다.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>설정 과정을 종료하시겠습니까? 나중에 계속할 수 있습니다.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>이전에 설치한 버전의 설정을 찾았습니다. 사용하시겠습니까?</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1바이트</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 KB/s</source>
        <translation>%1 KB/초</translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation>%1 MB/초</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>파일 1개</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>파일 %1개</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>폴더 1개</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>폴더 %1개</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>항목 %1개</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>파일 %1개, 폴더 %2개</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>방금</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>오늘 %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>어제 %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>내일</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>1분 전</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1분 전</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>1시간 전</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1시간 전</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1일 전</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>지난주</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>지난달</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1초</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1분</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1시간</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1일</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>%1초 남음</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>%1분 남음</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>%1시간 남음</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>월요일</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>화요일</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>수요일</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>목요일</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>금요일</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>토요일</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>일요일</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>더 알아보기</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>이 메시지 다시 보지 않기</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>잠시 기다려 주세요...</translation>
    </message>
</context>
</TS>
